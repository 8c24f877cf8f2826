#include "disegno/formati/salva_dis.h"

#include <algorithm>
#include <string>

#include "disegno/archivio_disegno.h"
#include "disegno/formati/pulisci_disegno.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

namespace {

// The literal lines of the head.
constexpr std::string_view kVersione4 = "                   4";
constexpr std::string_view kVersione3 = "                   3";
constexpr std::string_view kIntervalloZ = "-10000.000000        10000.000000";

std::string N(long long valore) {
  return TestoLista(valore);
}
std::string R(double valore) {
  return TestoLista(valore);
}

void ScriviCoordinate(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumCoord));
  for (std::int32_t i = 0; i < a.NumCoord; ++i) {
    AggiungiRiga(c, R(t.CoordX[i]) + R(t.CoordY[i]) + R(0.0));
  }
}

void ScriviPunti(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumPunti));
  for (std::int32_t i = 0; i < a.NumPunti; ++i) {
    AggiungiRiga(c, N(t.PuntoRif[i]) + N(t.PuntoB[i]) + N(t.PuntoA[i]));
  }
}

void ScriviLinee(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumLinee));
  for (std::int32_t i = 0; i < a.NumLinee; ++i) {
    AggiungiRiga(c, N(t.LinP1[i]) + N(t.LinP2[i]) + N(t.LinColore[i]) + N(t.LinTipo[i]));
  }
}

void ScriviTesti(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumTesti));
  for (std::int32_t i = 0; i < a.NumTesti; ++i) {
    AggiungiRiga(c, N(t.TestoPunto[i]) + N(1) + N(t.TestoAngolo[i]));
    AggiungiRiga(c,
                 R(t.TestoLarghezza[i] / 10.0) + R(t.TestoAltezza[i] / 10.0) + N(t.TestoColore[i]));
    AggiungiRiga(c, t.TestoStringa[i]);
  }
}

void ScriviArchi(const ArchivioDisegno& a, const TabelleDisegno& t, std::string& c) {
  AggiungiRiga(c, N(a.NumArchi));
  for (std::int32_t i = 0; i < a.NumArchi; ++i) {
    AggiungiRiga(c, N(t.ArcCentro[i]) + N(t.ArcInizio[i]) + N(t.ArcCentro2[i]) + N(t.ArcFine[i]));
    AggiungiRiga(c, N(t.ArcColore[i]) + N(t.ArcTipo[i]));
  }
}

}  // namespace

EstensioniDis EstensioniDisegno(const ArchivioDisegno& a) {
  const TabelleDisegno& t = a.Tabelle();
  EstensioniDis e{t.CoordX[0], t.CoordY[0], t.CoordX[0], t.CoordY[0]};
  for (std::int32_t i = 1; i < a.NumCoord; ++i) {
    e.xmin = std::min(e.xmin, t.CoordX[i]);
    e.xmax = std::max(e.xmax, t.CoordX[i]);
    e.ymin = std::min(e.ymin, t.CoordY[i]);
    e.ymax = std::max(e.ymax, t.CoordY[i]);
  }
  return e;
}

std::string TestoDis(const ArchivioDisegno& a, const EstensioniDis& estensioni,
                     std::int16_t versione) {
  const TabelleDisegno& t = a.Tabelle();
  std::string c;
  c.reserve(64 + 40 * static_cast<std::size_t>(a.NumCoord + a.NumLinee) +
            80 * static_cast<std::size_t>(a.NumTesti + a.NumArchi));
  AggiungiRiga(c, versione == 4 ? kVersione4 : kVersione3);
  AggiungiRiga(c, R(estensioni.xmin) + R(estensioni.xmax));
  AggiungiRiga(c, R(estensioni.ymin) + R(estensioni.ymax));
  AggiungiRiga(c, kIntervalloZ);
  ScriviCoordinate(a, t, c);
  ScriviPunti(a, t, c);
  ScriviLinee(a, t, c);
  ScriviTesti(a, t, c);
  ScriviArchi(a, t, c);
  return c;
}

void SalvaDis(Sessione& s, const std::string& nome, std::int16_t& versione,
              std::int16_t silenzioso) {
  const EstensioniDis estensioni = EstensioniDisegno(s.disegno);
  PulisciDisegno(s.disegno);
  const bool scritto = ScriviFileSicuro(Percorso(nome), TestoDis(s.disegno, estensioni, versione));
  versione = scritto ? 1 : 0;
  if (!scritto) {
    if (silenzioso == 0 || silenzioso == 2) {
      s.piattaforma.Messaggio("Errore durante la scrittura sul file" + nome, "ERRORE",
                              Icona::Nessuna, Pulsanti::Ok);
    }
    return;
  }
  if (silenzioso <= 0) {
    s.piattaforma.Messaggio("File " + nome + " salvato.", "SALVA FILE DISEGNO", Icona::Informazione,
                            Pulsanti::Ok);
  }
}

}  // namespace qf17
