#include "disegno/grb/crea_grb.h"

#include <string_view>

#include "disegno/archivio_disegno.h"
#include "disegno/formati/salva_dis.h"
#include "librerie/numeri.h"
#include "librerie/token.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

namespace {

constexpr std::size_t kPrimoCampo = 20;
constexpr std::size_t kAltroCampo = 19;

// The head: version, three values of the editor's own, six empty counts.
constexpr std::string_view kVersione = "                   4";
constexpr std::string_view kTesta = "                   5                   2                   0";
constexpr std::string_view kZero = "                   0";
constexpr int kRigheVuoteTesta = 6;
constexpr std::string_view kMarcatoriVuoti = "0";

std::string N(long long valore) {
  return TestoLista(valore);
}
std::string R(double valore) {
  return TestoLista(valore);
}

std::string Campo(const std::string& testo, std::size_t larghezza) {
  const std::string rifilato = Rifila(testo);
  const std::size_t n = NumeroCaratteri(rifilato);
  if (n >= larghezza) return PrimiCaratteri(rifilato, larghezza);
  return std::string(larghezza - n, ' ') + rifilato;
}

void ScriviCoordinate(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumCoord));
  for (std::int32_t i = 0; i < a.NumCoord; ++i) AggiungiRiga(c, R(t.CoordX[i]) + R(t.CoordY[i]));
}

void ScriviLinee(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumLinee));
  for (std::int32_t i = 0; i < a.NumLinee; ++i) {
    AggiungiRiga(c, N(t.LinP1[i]) + N(t.LinP2[i]));
    AggiungiRiga(c, N(ColoreGrb(t.LinColore[i])) + N(0) + N(t.LinTipo[i]));
  }
}

void ScriviArchi(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumArchi));
  for (std::int32_t i = 0; i < a.NumArchi; ++i) {
    AggiungiRiga(c, N(t.ArcCentro[i]) + N(t.ArcInizio[i]) + N(t.ArcFine[i]));
    AggiungiRiga(c, N(ColoreGrb(t.ArcColore[i])) + N(0) + N(t.ArcTipo[i]));
  }
}

// The file counts styles from 0.
void ScriviTesti(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumTesti));
  for (std::int32_t i = 0; i < a.NumTesti; ++i) {
    AggiungiRiga(c, N(t.TestoPunto[i]) + N(t.TestoColore[i] - 1) + N(t.TestoAngolo[i]) +
                        N(t.TestoAllineamento[i]) + N(0));
    AggiungiRiga(c, t.TestoStringa[i]);
  }
}

void ScriviQuote(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumQuote));
  for (std::int32_t i = 0; i < a.NumQuote; ++i) {
    AggiungiRiga(
        c, CampiGrb({TestoNumero(static_cast<long long>(t.QuotaP1[i])),
                     TestoNumero(static_cast<long long>(t.QuotaP2[i])), "-1", t.QuotaTipo[i]}));
    AggiungiRiga(c, N(t.QuotaStile[i] - 1) + R(t.QuotaScost[i]) + N(0));
    AggiungiRiga(c, t.QuotaTesto[i]);
  }
}

}  // namespace

std::string CampiGrb(const std::vector<std::string>& campi) {
  std::string riga;
  for (std::size_t i = 0; i < campi.size(); ++i) {
    if (i > 0) riga += ' ';
    riga += Campo(campi[i], i == 0 ? kPrimoCampo : kAltroCampo);
  }
  const std::size_t fine = riga.find_last_not_of(' ');
  riga.erase(fine == std::string::npos ? 0 : fine + 1);
  return riga;
}

std::int16_t ColoreGrb(std::int16_t colore) {
  return colore >= 0 && colore <= 7 ? colore : 1;
}

std::string CreaGRB(const ArchivioDisegno& a) {
  const TabelleDisegno& t = a.Tabelle();
  std::string c;
  c.reserve(256 + 40 * static_cast<std::size_t>(a.NumCoord + 2 * a.NumLinee) +
            60 * static_cast<std::size_t>(a.NumTesti + a.NumArchi + a.NumQuote));
  AggiungiRiga(c, kVersione);
  AggiungiRiga(c, kTesta);
  for (int i = 0; i < kRigheVuoteTesta; ++i) AggiungiRiga(c, kZero);
  const EstensioniDis e = EstensioniDisegno(a);
  AggiungiRiga(c, R(e.xmin) + R(e.xmax));
  AggiungiRiga(c, R(e.ymin) + R(e.ymax));
  ScriviCoordinate(a, t, c);
  AggiungiRiga(c, kMarcatoriVuoti);
  ScriviLinee(a, t, c);
  ScriviArchi(a, t, c);
  ScriviTesti(a, t, c);
  AggiungiRiga(c, kZero);
  AggiungiRiga(c, kZero);
  ScriviQuote(a, t, c);
  AggiungiRiga(c, N(a.NumPoligoni));
  return c;
}

}  // namespace qf17
