#include "disegno/formati/salva_dxf_tratteggio.h"

#include <cmath>

namespace qf17 {

std::optional<std::vector<SegmentoDxf>> DisgregaLinea(const TipiLinea& tipi, std::int16_t tipo,
                                                      double scala, const SegmentoDxf& linea,
                                                      StatoTratteggio& stato) {
  if (!decltype(tipi.TipoNumTratti)::Contiene(tipo)) return std::nullopt;
  const int pezzi = tipi.TipoNumTratti[tipo];
  if (pezzi <= 0) return std::nullopt;
  const double dx = linea.x2 - linea.x1, dy = linea.y2 - linea.y1;
  const double lunghezza = std::hypot(dx, dy);
  const double pattern = tipi.TipoLunghezza[tipo] / 10.0 * scala;
  // Written so that a NaN scale or length also leaves the line whole.
  if (!(lunghezza > 0) || !(pattern > 0) || !(lunghezza / pattern <= kMassimoPatternLinea)) {
    return std::nullopt;
  }
  const double ux = dx / lunghezza, uy = dy / lunghezza;
  auto pezzo = [&](int i) { return tipi.TipoTratti(tipo, i) / 10.0 * scala; };

  int i = 0;
  double tratto = pezzo(0);
  if (stato.resto > 0 && stato.tipo == tipo && stato.pezzo < pezzi) {
    i = stato.pezzo;
    tratto = stato.resto;
  }
  stato = StatoTratteggio{};

  std::vector<SegmentoDxf> segmenti;
  double s = 0, px = linea.x1, py = linea.y1;
  while (s < lunghezza - kTolleranzaTratteggio) {
    s += tratto;
    const bool tagliato = s > lunghezza + kTolleranzaTratteggio;
    if (tagliato) tratto -= s - lunghezza;
    const double qx = px + tratto * ux, qy = py + tratto * uy;
    if (i % 2 == 0) segmenti.push_back({px, py, qx, qy});
    px = qx;
    py = qy;
    if (tagliato) {
      stato = {tipo, static_cast<std::int16_t>(i), s - lunghezza};
      break;
    }
    i = (i + 1) % pezzi;
    tratto = pezzo(i);
  }
  return segmenti;
}

}  // namespace qf17
