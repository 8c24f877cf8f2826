#include "disegno/tratti_testo.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "piattaforma/file_testo.h"

namespace qf17 {

std::vector<Tratto> TrattiTesto(const FontTratti& font, std::string_view testo, double x, double y,
                                double angolo, double larghezza, double altezza) {
  const double sx = larghezza / 99.0 * (1.0 - font.FontStrizione / 100.0);
  const double sy = altezza / 69.0;
  const double c = std::cos(angolo);
  const double s = std::sin(angolo);
  const std::string codici = Utf8InCp1252(testo);

  std::vector<Tratto> tratti;
  for (std::size_t n = 0; n < codici.size(); ++n) {
    const double d = static_cast<double>(n) * larghezza;
    const double ox = x + d * c;
    const double oy = y + d * s;
    const auto car = static_cast<unsigned char>(codici[n]);
    const auto& fx = font.FontX[car];
    const auto& fy = font.FontY[car];
    auto punto = [&](std::size_t k, double& px, double& py) {
      const double gx = fx[k] * sx;
      const double gy = (fy[k] - 30) * sy;
      px = gx * c - gy * s + ox;
      py = gx * s + gy * c + oy;
    };
    const int punti = std::min<int>(font.FontNumPunti[car], static_cast<int>(fx.size()));
    for (int k = 0; k + 1 < punti; k += 2) {
      Tratto t;
      punto(static_cast<std::size_t>(k), t.x1, t.y1);
      punto(static_cast<std::size_t>(k) + 1, t.x2, t.y2);
      tratti.push_back(t);
    }
  }
  return tratti;
}

}  // namespace qf17
