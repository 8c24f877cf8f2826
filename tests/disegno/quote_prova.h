#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "verifica/geometria.h"

namespace qf17::prova {

// What the store holds, read back through its coordinate table.
struct LineaLetta {
  Punto a, b;
  std::int16_t colore = 0, tipo = 0;
};
struct ArcoLetto {
  Punto centro, inizio, fine;
  std::int16_t colore = 0;
  double Diametro() const { return 2 * Modulo(inizio - centro); }
};
struct TestoLetto {
  Punto punto;
  std::int16_t angolo = 0, larghezza = 0, altezza = 0, colore = 0;
  std::string testo;
};

inline Punto Coordinata(const ArchivioDisegno& a, std::int32_t i) {
  return {a.Tabelle().CoordX[i], a.Tabelle().CoordY[i]};
}

inline std::vector<LineaLetta> Linee(const ArchivioDisegno& a) {
  std::vector<LineaLetta> r;
  const TabelleDisegno& t = a.Tabelle();
  for (int i = 0; i < a.NumLinee; ++i) {
    r.push_back(
        {Coordinata(a, t.LinP1[i]), Coordinata(a, t.LinP2[i]), t.LinColore[i], t.LinTipo[i]});
  }
  return r;
}

inline std::vector<ArcoLetto> Archi(const ArchivioDisegno& a) {
  std::vector<ArcoLetto> r;
  const TabelleDisegno& t = a.Tabelle();
  for (int i = 0; i < a.NumArchi; ++i) {
    r.push_back({Coordinata(a, t.ArcCentro[i]), Coordinata(a, t.ArcInizio[i]),
                 Coordinata(a, t.ArcFine[i]), t.ArcColore[i]});
  }
  return r;
}

inline std::vector<LineaLetta> Linee(const Sessione& s) {
  return Linee(s.disegno);
}
inline std::vector<ArcoLetto> Archi(const Sessione& s) {
  return Archi(s.disegno);
}

inline std::vector<TestoLetto> Testi(const ArchivioDisegno& a) {
  std::vector<TestoLetto> r;
  const TabelleDisegno& t = a.Tabelle();
  for (int i = 0; i < a.NumTesti; ++i) {
    r.push_back({Coordinata(a, t.TestoPunto[i]), t.TestoAngolo[i], t.TestoLarghezza[i],
                 t.TestoAltezza[i], t.TestoColore[i], t.TestoStringa[i]});
  }
  return r;
}

inline std::vector<std::string> Stringhe(const ArchivioDisegno& a) {
  std::vector<std::string> r;
  for (const TestoLetto& t : Testi(a)) r.push_back(t.testo);
  return r;
}

inline constexpr double kTollQuote = 1e-7;

inline void AttesoPunto(Punto p, double x, double y, const std::string& dove) {
  EXPECT_NEAR(p.x, x, kTollQuote) << dove << " x";
  EXPECT_NEAR(p.y, y, kTollQuote) << dove << " y";
}

// A session whose drawing is the target, empty, with its extents reset and the options of a
// fresh installation: dimension texts 8 x 8 at 10 from the line, indicators 5, arrows. Shared
// by the tests of the store, its writers and the sheets.
struct SessioneQuote {
  SessioneQuote() {
    a.DestinazioneDisegno = "gendis";
    AzzeraDisegno(a);
    AzzeraEstensioni(a);
  }
  PiattaformaRegistrata p;
  Sessione s{p};
  ArchivioDisegno& a = s.disegno;
};

}  // namespace qf17::prova
