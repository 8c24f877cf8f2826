#include "disegno/formati/salva_dxf.h"

#include <cmath>
#include <numbers>
#include <string>

#include "disegno/archivio_disegno.h"
#include "disegno/font.h"
#include "disegno/formati/salva_dis.h"
#include "disegno/formati/salva_dxf_tipi_linea.h"
#include "disegno/formati/salva_dxf_tratteggio.h"
#include "disegno/tratti_testo.h"
#include "librerie/numeri.h"
#include "nodo/avvio.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

// The family's CAD files measure arc angles with this value, not with the double nearest pi.
constexpr double kPiDxf = 3.14159265358979;
// Z of every point.
constexpr std::string_view kZeta = "0.0";
// The extents are widened by this share of the larger side.
constexpr double kMargineDxf = 0.05;

class ScrittoreDxf {
 public:
  ScrittoreDxf(const ArchivioDisegno& a, const FontTratti& font, const ModoDxf& modo)
      : a_(a), t_(a.Tabelle()), font_(font), modo_(modo) {}

  std::string Documento() {
    c_.reserve(160 * static_cast<std::size_t>(a_.NumLinee + a_.NumTesti + a_.NumArchi) + 512);
    Intestazione();
    Tabelle();
    Coppia(" 0", "SECTION");
    Coppia(" 2", "ENTITIES");
    StatoTratteggio stato;
    for (std::int32_t i = 0; i < a_.NumLinee; ++i) Linea(i, stato);
    for (std::int32_t i = 0; i < a_.NumTesti; ++i) Testo(i);
    for (std::int32_t i = 0; i < a_.NumArchi; ++i) Arco(i);
    Coppia(" 0", "ENDSEC");
    Coppia(" 0", "EOF");
    return std::move(c_);
  }

 private:
  // Codes, names and numbers are ASCII: they need no conversion.
  void Riga(std::string_view testo) {
    c_ += testo;
    c_ += "\r\n";
  }
  void Coppia(std::string_view codice, std::string_view valore) {
    Riga(codice);
    Riga(valore);
  }
  void Numero(std::string_view codice, double valore) { Coppia(codice, NumeroDxf(valore)); }
  void Intero(std::string_view codice, long long valore) { Coppia(codice, NumeroDxf(valore)); }
  void Punto(std::string_view x, std::string_view y, std::string_view z, double px, double py) {
    Numero(x, px);
    Numero(y, py);
    Coppia(z, kZeta);
  }

  bool Valido(std::int32_t i) const { return i >= 0 && i < a_.NumCoord; }
  double X(std::int32_t i) const { return t_.CoordX[i]; }
  double Y(std::int32_t i) const { return t_.CoordY[i]; }

  void Intestazione();
  void Tabelle();
  void EntitaLinea(const SegmentoDxf& l, bool conColore, std::int16_t colore, std::int16_t tipo);
  void Linea(std::int32_t riga, StatoTratteggio& stato);
  void Testo(std::int32_t riga);
  void Arco(std::int32_t riga);

  const ArchivioDisegno& a_;
  const TabelleDisegno& t_;
  const FontTratti& font_;
  const ModoDxf& modo_;
  std::string c_;
};

void ScrittoreDxf::Intestazione() {
  EstensioniDis e = EstensioniDisegno(a_);
  double margine = kMargineDxf * (e.xmax - e.xmin);
  if (kMargineDxf * (e.ymax - e.ymin) > margine) margine = kMargineDxf * (e.ymax - e.ymin);
  Coppia(" 0", "SECTION");
  Coppia(" 2", "HEADER");
  Coppia(" 9", "$EXTMIN");
  Punto(" 10", " 20", " 30", e.xmin - margine, e.ymin - margine);
  Coppia(" 9", "$EXTMAX");
  Punto(" 10", " 20", " 30", e.xmax + margine, e.ymax + margine);
  Coppia(" 0", "ENDSEC");
}

// One layer, "0", white and continuous. The line types themselves are not defined: the file
// relies on the reader's own.
void ScrittoreDxf::Tabelle() {
  Coppia(" 0", "SECTION");
  Coppia(" 2", "TABLES");
  Coppia(" 0", "TABLE");
  Coppia(" 2", "LAYER");
  Coppia(" 70", "1");
  Coppia(" 0", "LAYER");
  Coppia(" 2", "0");
  Coppia(" 70", "0");
  Coppia(" 62", "7");
  Coppia(" 6", "CONTINUOUS");
  Coppia(" 0", "ENDTAB");
  Coppia(" 0", "ENDSEC");
}

void ScrittoreDxf::EntitaLinea(const SegmentoDxf& l, bool conColore, std::int16_t colore,
                               std::int16_t tipo) {
  Coppia(" 0", "LINE");
  Coppia(" 8", "0");
  Punto(" 10", " 20", " 30", l.x1, l.y1);
  Punto(" 11", " 21", " 31", l.x2, l.y2);
  if (conColore) Intero(" 62", colore);
  if (tipo != 0) Coppia(" 6", NomeTipoLineaDxf(tipo));
}

void ScrittoreDxf::Linea(std::int32_t riga, StatoTratteggio& stato) {
  const std::int32_t p1 = t_.LinP1[riga], p2 = t_.LinP2[riga];
  if (!Valido(p1) || !Valido(p2)) return;
  const SegmentoDxf linea{X(p1), Y(p1), X(p2), Y(p2)};
  const std::int16_t colore = t_.LinColore[riga], tipo = t_.LinTipo[riga];
  const bool conColore = colore != 1;
  const std::int16_t dxf = ColoreDxf(colore, modo_.monocromo);
  if (modo_.disgrega && modo_.tipi != nullptr && tipo > 0) {
    if (auto tratti = DisgregaLinea(*modo_.tipi, tipo, modo_.scala, linea, stato)) {
      for (const SegmentoDxf& tratto : *tratti) EntitaLinea(tratto, conColore, dxf, 0);
      return;
    }
  }
  EntitaLinea(linea, conColore, dxf, tipo);
}

void ScrittoreDxf::Testo(std::int32_t riga) {
  const std::int32_t p = t_.TestoPunto[riga];
  const double larghezza = t_.TestoLarghezza[riga] / 10.0, altezza = t_.TestoAltezza[riga] / 10.0;
  if (!Valido(p) || !(larghezza > 0) || !(altezza > 0)) return;
  const std::int16_t colore = t_.TestoColore[riga];
  const std::int16_t dxf = ColoreDxf(colore, modo_.monocromo);
  if (modo_.esplodiTesti) {
    const double angolo = t_.TestoAngolo[riga] * std::numbers::pi / 180.0;
    for (const Tratto& tr :
         TrattiTesto(font_, t_.TestoStringa[riga], X(p), Y(p), angolo, larghezza, altezza)) {
      EntitaLinea({tr.x1, tr.y1, tr.x2, tr.y2}, dxf != 7, dxf, 0);
    }
    return;
  }
  Coppia(" 0", "TEXT");
  Coppia(" 8", "0");
  Punto(" 10", " 20", " 30", X(p), Y(p));
  Numero(" 40", altezza);
  Riga(" 1");
  AggiungiRiga(c_, TestoConDiametro(t_.TestoStringa[riga]));
  Intero(" 50", t_.TestoAngolo[riga]);
  Numero(" 41", larghezza / altezza);
  if (colore != 1) Intero(" 62", dxf);
}

void ScrittoreDxf::Arco(std::int32_t riga) {
  const std::int32_t c = t_.ArcCentro[riga], i = t_.ArcInizio[riga], f = t_.ArcFine[riga];
  if (!Valido(c) || !Valido(i) || !Valido(f)) return;
  const double raggio = std::hypot(X(i) - X(c), Y(i) - Y(c));
  if (raggio < kTolleranzaDisegno) return;
  const bool cerchio = std::hypot(X(f) - X(i), Y(f) - Y(i)) < kTolleranzaDisegno;
  Coppia(" 0", cerchio ? "CIRCLE" : "ARC");
  Coppia(" 8", "0");
  Punto(" 10", " 20", " 30", X(c), Y(c));
  Numero(" 40", raggio);
  if (!cerchio) {
    Numero(" 50", AngoloDxf(X(c), Y(c), X(i), Y(i)));
    Numero(" 51", AngoloDxf(X(c), Y(c), X(f), Y(f)));
  }
  const std::int16_t colore = t_.ArcColore[riga], tipo = t_.ArcTipo[riga];
  if (colore != 1) Intero(" 62", ColoreDxf(colore, modo_.monocromo));
  if (tipo != 0) Coppia(" 6", NomeTipoLineaDxf(tipo));
}

}  // namespace

std::int16_t ColoreDxf(std::int16_t colore, bool monocromo) {
  if (monocromo || colore < 0 || colore >= static_cast<int>(kColoriDxf.size())) return 7;
  return kColoriDxf[static_cast<std::size_t>(colore)];
}

std::string_view NomeTipoLineaDxf(std::int16_t tipo) {
  switch (tipo) {
    case 1:
      return "CENTER";
    case 2:
      return "DASHED";
    case 3:
      return "DIVIDE";
    case 4:
      return "DASHED2";
    default:
      return "CONTINUOUS";
  }
}

std::string NumeroDxf(double valore) {
  std::string testo = TestoNumero(valore);
  return testo.front() == '-' ? testo : " " + testo;
}

std::string NumeroDxf(long long valore) {
  std::string testo(valore < 0 ? 0 : 1, ' ');
  return testo += std::to_string(valore);
}

double AngoloDxf(double cx, double cy, double px, double py) {
  const double dx = px - cx, dy = py - cy;
  if (std::abs(dx) < kTolleranzaDisegno) return dy > 0 ? 90.0 : 270.0;
  const double b = std::abs(std::atan(dy / dx)) * 180.0 / kPiDxf;
  double angolo;
  if (dx > 0) {
    angolo = dy >= 0 ? b : 360.0 - b;
  } else {
    angolo = dy >= 0 ? 180.0 - b : 180.0 + b;
  }
  if (angolo >= 360.0) angolo -= 360.0;
  return angolo;
}

std::string TestoConDiametro(std::string testo) {
  if (auto p = testo.find(']'); p != std::string::npos) testo.replace(p, 1, "%%c");
  return testo;
}

std::string TestoDxf(const ArchivioDisegno& a, const FontTratti& font, const ModoDxf& modo) {
  return ScrittoreDxf(a, font, modo).Documento();
}

bool SalvaDxf(Sessione& s, const std::string& nome, std::int16_t esplodiTesti,
              std::int16_t monocromo, double scala, std::int16_t disgrega,
              std::int16_t silenzioso) {
  ModoDxf modo;
  modo.esplodiTesti = esplodiTesti == 1;
  modo.monocromo = monocromo == 1;
  modo.disgrega = disgrega == 1;
  modo.scala = scala;
  TipiLinea tipi;
  if (modo.disgrega) {
    const std::string errore = LegTipLin(tipi, Percorso(s.cartelle.custom) / kFileTipiLinea);
    if (!errore.empty()) {
      s.piattaforma.Messaggio(errore, "ERRORE", Icona::Critica, Pulsanti::Ok);
      return false;
    }
    modo.tipi = &tipi;
  }
  if (!ScriviFileSicuro(Percorso(nome), TestoDxf(s.disegno, s.font, modo))) {
    s.piattaforma.Messaggio(std::string(kErroreAperturaDxf) + nome, std::string(kTitoloProgramma),
                            Icona::Nessuna, Pulsanti::Ok);
    return false;
  }
  if (silenzioso == 0) {
    std::string testo = "File " + nome + " salvato.";
    if (modo.disgrega) testo += "\n" + std::string(kAvvisoDisgregaDxf) + TestoNumero(scala);
    s.piattaforma.Messaggio(testo, std::string(kTitoloSalvaDxf), Icona::Informazione, Pulsanti::Ok);
  }
  return true;
}

}  // namespace qf17
