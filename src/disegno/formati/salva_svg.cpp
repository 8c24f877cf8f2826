#include "disegno/formati/salva_svg.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "disegno/archivio_disegno.h"
#include "disegno/tratti_testo.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

// Clear space round what is drawn, millimetres.
constexpr double kMargineSvg = 10.0;

std::string N(double valore) {
  return NumeroSvg(valore);
}
std::string Escape(std::string_view testo) {
  return TestoXml(testo);
}

// What is drawn, gathered element by element, with the box that holds it (sheet frame, Y up).
class Scrittore {
 public:
  Scrittore(const ArchivioDisegno& a) : a_(a), t_(a.Tabelle()) {}

  bool Valido(std::int32_t i) const { return i >= 0 && i < a_.NumCoord; }
  double X(std::int32_t i) const { return t_.CoordX[i]; }
  double Y(std::int32_t i) const { return t_.CoordY[i]; }

  void Includi(double x, double y) {
    xmin_ = std::min(xmin_, x);
    xmax_ = std::max(xmax_, x);
    ymin_ = std::min(ymin_, y);
    ymax_ = std::max(ymax_, y);
  }

  // "x y" of a sheet point, Y turned downwards.
  static std::string P(double x, double y) { return N(x) + " " + N(-y); }

  void Linea(std::int32_t riga);
  void Arco(std::int32_t riga);
  void Testo(std::int32_t riga, const FontTratti& font);
  std::string Documento() const;

 private:
  static std::string Penna(std::int16_t colore) {
    return " stroke=\"" + std::string(ColoreSvg(colore)) + "\"";
  }

  const ArchivioDisegno& a_;
  const TabelleDisegno& t_;
  std::string corpo_;
  double xmin_ = 1e300, xmax_ = -1e300, ymin_ = 1e300, ymax_ = -1e300;
};

void Scrittore::Linea(std::int32_t riga) {
  const std::int32_t p1 = t_.LinP1[riga], p2 = t_.LinP2[riga];
  if (!Valido(p1) || !Valido(p2)) return;
  Includi(X(p1), Y(p1));
  Includi(X(p2), Y(p2));
  corpo_ += "<line x1=\"" + N(X(p1)) + "\" y1=\"" + N(-Y(p1)) + "\" x2=\"" + N(X(p2)) + "\" y2=\"" +
            N(-Y(p2)) + "\"" + Penna(t_.LinColore[riga]);
  const std::int16_t tipo = t_.LinTipo[riga];
  if (tipo == 4) corpo_ += " stroke-dasharray=\"" + std::string(kTrattoSvg) + "\"";
  if (tipo == 1) corpo_ += " stroke-dasharray=\"" + std::string(kTrattoPuntoSvg) + "\"";
  corpo_ += "/>\n";
}

void Scrittore::Arco(std::int32_t riga) {
  const std::int32_t c = t_.ArcCentro[riga], i = t_.ArcInizio[riga], f = t_.ArcFine[riga];
  if (!Valido(c) || !Valido(i) || !Valido(f)) return;
  const double dxi = X(i) - X(c), dyi = Y(i) - Y(c);
  const double raggio = std::hypot(dxi, dyi);
  Includi(X(c) - raggio, Y(c) - raggio);
  Includi(X(c) + raggio, Y(c) + raggio);
  const bool cerchio = i == f || (std::abs(X(i) - X(f)) < kTolleranzaDisegno &&
                                  std::abs(Y(i) - Y(f)) < kTolleranzaDisegno);
  if (cerchio) {
    corpo_ += "<circle cx=\"" + N(X(c)) + "\" cy=\"" + N(-Y(c)) + "\" r=\"" + N(raggio) + "\"" +
              Penna(t_.ArcColore[riga]) + "/>\n";
    return;
  }
  // Counter-clockwise on the sheet stays counter-clockwise on the screen, which in SVG's
  // downward frame is the negative sweep.
  double ampiezza = std::atan2(Y(f) - Y(c), X(f) - X(c)) - std::atan2(dyi, dxi);
  while (ampiezza < 0) ampiezza += 2 * std::numbers::pi;
  const char* grande = ampiezza > std::numbers::pi ? "1" : "0";
  corpo_ += "<path d=\"M " + P(X(i), Y(i)) + " A " + N(raggio) + " " + N(raggio) + " 0 " + grande +
            " 0 " + P(X(f), Y(f)) + "\"" + Penna(t_.ArcColore[riga]) + "/>\n";
}

void Scrittore::Testo(std::int32_t riga, const FontTratti& font) {
  const std::int32_t p = t_.TestoPunto[riga];
  const double larghezza = t_.TestoLarghezza[riga] / 10.0, altezza = t_.TestoAltezza[riga] / 10.0;
  // The DIS writer drops such texts too.
  if (!Valido(p) || larghezza <= 0 || altezza <= 0) return;
  const double angolo = t_.TestoAngolo[riga] * std::numbers::pi / 180.0;
  const std::string& testo = t_.TestoStringa[riga];
  std::string d;
  for (const Tratto& tr : TrattiTesto(font, testo, X(p), Y(p), angolo, larghezza, altezza)) {
    Includi(tr.x1, tr.y1);
    Includi(tr.x2, tr.y2);
    d += (d.empty() ? "M " : " M ") + P(tr.x1, tr.y1) + " L " + P(tr.x2, tr.y2);
  }
  if (d.empty()) return;
  corpo_ += "<path d=\"" + d + "\"" + Penna(t_.TestoColore[riga]) + "><title>" + Escape(testo) +
            "</title></path>\n";
}

std::string Scrittore::Documento() const {
  double x0 = xmin_, x1 = xmax_, y0 = ymin_, y1 = ymax_;
  if (x0 > x1) x0 = x1 = y0 = y1 = 0;  // nothing drawn
  const std::string x = N(x0 - kMargineSvg), y = N(-y1 - kMargineSvg);
  const std::string w = N(x1 - x0 + 2 * kMargineSvg), h = N(y1 - y0 + 2 * kMargineSvg);
  std::string doc = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  doc += "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + w + "mm\" height=\"" + h +
         "mm\" viewBox=\"" + x + " " + y + " " + w + " " + h + "\">\n";
  doc += "<rect x=\"" + x + "\" y=\"" + y + "\" width=\"" + w + "\" height=\"" + h +
         "\" fill=\"#ffffff\"/>\n";
  // vector-effect is not inherited: a group cannot carry it for its elements.
  doc += "<style>line,circle,path{vector-effect:non-scaling-stroke}</style>\n";
  doc += "<g fill=\"none\" stroke-width=\"" + std::string(kSpessoreSvg) +
         "\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
  doc += corpo_;
  doc += "</g>\n</svg>\n";
  return doc;
}

}  // namespace

std::string_view ColoreSvg(std::int16_t indice) {
  if (indice < 0 || indice >= static_cast<int>(kColoriSvg.size())) return kColoriSvg[0];
  return kColoriSvg[static_cast<std::size_t>(indice)];
}

std::string TestoSvg(const Sessione& s) {
  const ArchivioDisegno& a = s.disegno;
  Scrittore w(a);
  for (std::int32_t i = 0; i < a.NumLinee; ++i) w.Linea(i);
  for (std::int32_t i = 0; i < a.NumArchi; ++i) w.Arco(i);
  for (std::int32_t i = 0; i < a.NumTesti; ++i) w.Testo(i, s.font);
  return w.Documento();
}

bool ScriviSvg(const Sessione& s, const std::filesystem::path& file) {
  return ScriviFileSicuro(file, TestoSvg(s));
}

bool SalvaSvg(Sessione& s, const std::string& nome, std::int16_t silenzioso) {
  const bool scritto = ScriviSvg(s, Percorso(nome));
  if (!scritto && (silenzioso == 0 || silenzioso == 2)) {
    s.piattaforma.Messaggio("Errore durante la scrittura sul file" + nome, "ERRORE", Icona::Nessuna,
                            Pulsanti::Ok);
  }
  if (scritto && silenzioso <= 0) {
    s.piattaforma.Messaggio("File " + nome + " salvato.", "SALVA FILE DISEGNO", Icona::Informazione,
                            Pulsanti::Ok);
  }
  return scritto;
}

// Four decimals are a tenth of a micrometre on the sheet: more than any viewer shows.
std::string NumeroSvg(double valore) {
  return TestoNumero(ArrotondaPari(valore, 4));
}

std::string TestoXml(std::string_view testo) {
  std::string r;
  for (char c : testo) {
    switch (c) {
      case '&':
        r += "&amp;";
        break;
      case '<':
        r += "&lt;";
        break;
      case '>':
        r += "&gt;";
        break;
      case '"':
        r += "&quot;";
        break;
      default:
        r += c;
    }
  }
  return r;
}

}  // namespace qf17
