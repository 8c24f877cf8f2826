// The fast clean-up against the plain passes of oracolo_pulizia, on many random drawings built to
// hit the tolerance from both sides, and on drawings built through the primitives.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/archivio_disegno_primitive.h"
#include "disegno/formati/pulisci_disegno.h"
#include "disegno/formati/pulisci_passi.h"
#include "disegno/formati/salva_dis.h"
#include "nodo/sessione.h"
#include "oracolo_pulizia.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

template <class Tab>
testing::AssertionResult StesseRighe(const Tab& x, const Tab& y, std::int32_t righe,
                                     const char* nome) {
  for (std::int32_t i = 0; i < righe; ++i) {
    if (!(x[i] == y[i])) return testing::AssertionFailure() << nome << " differs at row " << i;
  }
  return testing::AssertionSuccess();
}

testing::AssertionResult StesseCoordinate(const TabelleDisegno& x, const TabelleDisegno& y,
                                          std::int32_t righe) {
  for (std::int32_t i = 0; i < righe; ++i) {
    if (std::bit_cast<std::uint64_t>(x.CoordX[i]) != std::bit_cast<std::uint64_t>(y.CoordX[i]) ||
        std::bit_cast<std::uint64_t>(x.CoordY[i]) != std::bit_cast<std::uint64_t>(y.CoordY[i])) {
      return testing::AssertionFailure() << "coordinate " << i << " differs";
    }
  }
  return testing::AssertionSuccess();
}

// Every count, every live row, and the file.
testing::AssertionResult StessoDisegno(const ArchivioDisegno& veloce,
                                       const ArchivioDisegno& oracolo) {
  if (veloce.NumCoord != oracolo.NumCoord || veloce.NumLinee != oracolo.NumLinee ||
      veloce.NumArchi != oracolo.NumArchi || veloce.NumTesti != oracolo.NumTesti ||
      veloce.NumPunti != oracolo.NumPunti) {
    return testing::AssertionFailure()
           << "counts " << veloce.NumCoord << "/" << veloce.NumLinee << "/" << veloce.NumArchi
           << "/" << veloce.NumTesti << " against " << oracolo.NumCoord << "/" << oracolo.NumLinee
           << "/" << oracolo.NumArchi << "/" << oracolo.NumTesti;
  }
  const TabelleDisegno& x = veloce.Tabelle();
  const TabelleDisegno& y = oracolo.Tabelle();
  for (auto esito : {StesseCoordinate(x, y, veloce.NumCoord),
                     StesseRighe(x.LinP1, y.LinP1, veloce.NumLinee, "LinP1"),
                     StesseRighe(x.LinP2, y.LinP2, veloce.NumLinee, "LinP2"),
                     StesseRighe(x.LinColore, y.LinColore, veloce.NumLinee, "LinColore"),
                     StesseRighe(x.LinTipo, y.LinTipo, veloce.NumLinee, "LinTipo"),
                     StesseRighe(x.PuntoRif, y.PuntoRif, veloce.NumPunti, "PuntoRif"),
                     StesseRighe(x.ArcCentro, y.ArcCentro, veloce.NumArchi, "ArcCentro"),
                     StesseRighe(x.ArcInizio, y.ArcInizio, veloce.NumArchi, "ArcInizio"),
                     StesseRighe(x.ArcCentro2, y.ArcCentro2, veloce.NumArchi, "ArcCentro2"),
                     StesseRighe(x.ArcFine, y.ArcFine, veloce.NumArchi, "ArcFine"),
                     StesseRighe(x.ArcColore, y.ArcColore, veloce.NumArchi, "ArcColore"),
                     StesseRighe(x.TestoPunto, y.TestoPunto, veloce.NumTesti, "TestoPunto"),
                     StesseRighe(x.TestoLarghezza, y.TestoLarghezza, veloce.NumTesti, "Larghezza"),
                     StesseRighe(x.TestoStringa, y.TestoStringa, veloce.NumTesti, "Stringa")}) {
    if (!esito) return esito;
  }
  const EstensioniDis e{0, 0, 0, 0};
  if (TestoDis(veloce, e, 4) != TestoDis(oracolo, e, 4)) {
    return testing::AssertionFailure() << "the files differ";
  }
  return testing::AssertionSuccess();
}

// The live rows only: a whole copy of the tables would cost more than the clean-up of a small
// drawing.
void CopiaRigheVive(const ArchivioDisegno& da, ArchivioDisegno& in) {
  const TabelleDisegno& x = da.Tabelle();
  TabelleDisegno& y = in.Tabelle();
  in.NumCoord = da.NumCoord, in.NumLinee = da.NumLinee, in.NumPunti = da.NumPunti;
  in.NumArchi = da.NumArchi, in.NumTesti = da.NumTesti;
  for (std::int32_t i = 0; i < da.NumCoord; ++i) {
    y.CoordX[i] = x.CoordX[i];
    y.CoordY[i] = x.CoordY[i];
  }
  for (std::int32_t i = 0; i < da.NumLinee; ++i) {
    y.LinP1[i] = x.LinP1[i], y.LinP2[i] = x.LinP2[i], y.LinColore[i] = x.LinColore[i];
    y.LinTipo[i] = x.LinTipo[i];
  }
  for (std::int32_t i = 0; i < da.NumPunti; ++i) {
    y.PuntoRif[i] = x.PuntoRif[i];
    y.PuntoA[i] = x.PuntoA[i];
    y.PuntoB[i] = x.PuntoB[i];
  }
  for (std::int32_t i = 0; i < da.NumArchi; ++i) {
    y.ArcCentro[i] = x.ArcCentro[i], y.ArcInizio[i] = x.ArcInizio[i];
    y.ArcCentro2[i] = x.ArcCentro2[i], y.ArcFine[i] = x.ArcFine[i], y.ArcColore[i] = x.ArcColore[i];
    y.ArcTipo[i] = x.ArcTipo[i];
  }
  for (std::int32_t i = 0; i < da.NumTesti; ++i) {
    y.TestoPunto[i] = x.TestoPunto[i], y.TestoAngolo[i] = x.TestoAngolo[i];
    y.TestoLarghezza[i] = x.TestoLarghezza[i], y.TestoAltezza[i] = x.TestoAltezza[i];
    y.TestoColore[i] = x.TestoColore[i], y.TestoStringa[i] = x.TestoStringa[i];
  }
}

// Cleans a copy each way and compares; the two archives are kept from one drawing to the next.
// With `latoCella` the fast clean-up's grid has cells of that size instead of its own choice.
class Confronto {
 public:
  testing::AssertionResult operator()(const ArchivioDisegno& disegno, double latoCella = 0) {
    CopiaRigheVive(disegno, veloce_);
    CopiaRigheVive(disegno, oracolo_);
    PulisciDisegnoConCelle(veloce_, latoCella);
    prova::PulisciDisegnoOracolo(oracolo_);
    return StessoDisegno(veloce_, oracolo_);
  }

 private:
  ArchivioDisegno veloce_, oracolo_;
};

// Small drawings on a coarse grid, so that lines lie on one another often, with points placed
// just inside and just outside the tolerance of both tests (equal coordinates, point on a
// segment), degenerate and repeated lines, negative colours and types, repeated arcs, texts of
// no size and a few markers.
class DisegnoCasuale {
 public:
  explicit DisegnoCasuale(std::uint64_t seme) : g_(seme) {}

  void Riempi(ArchivioDisegno& a) {
    AzzeraDisegno(a);
    TabelleDisegno& t = a.Tabelle();
    const int coordinate = Intero(1, 70);
    for (int k = 0; k < coordinate; ++k) NuovaCoordinata(a, t);
    const int linee = Intero(0, 90);
    for (int k = 0; k < linee; ++k) {
      const std::int32_t i = a.NumLinee++;
      t.LinP1[i] = Indice(a);
      t.LinP2[i] = Prob(0.05) ? t.LinP1[i] : Indice(a);
      t.LinColore[i] = Scegli<std::int16_t>({-1, 0, 0, 1, 2, 2, 5, 7, 7, 7});
      t.LinTipo[i] = Scegli<std::int16_t>({-1, 0, 0, 0, 1, 1, 4, 4, 4, 2, 3});
    }
    const int archi = Intero(0, 25);
    for (int k = 0; k < archi; ++k) Arco(a, t);
    const int testi = Intero(0, 20);
    for (int k = 0; k < testi; ++k) {
      const std::int32_t i = a.NumTesti++;
      t.TestoPunto[i] = Indice(a);
      t.TestoAngolo[i] = Scegli<std::int16_t>({0, 90, -45});
      t.TestoLarghezza[i] = Scegli<std::int16_t>({-3, 0, 1, 25, 25});
      t.TestoAltezza[i] = Scegli<std::int16_t>({-1, 0, 1, 35, 35});
      t.TestoColore[i] = Scegli<std::int16_t>({1, 6});
      t.TestoStringa[i] = "t" + std::to_string(k);
    }
    a.NumPunti = Prob(0.1) ? Intero(1, 3) : 0;
    for (std::int32_t i = 0; i < a.NumPunti; ++i) {
      t.PuntoRif[i] = Indice(a);
      t.PuntoA[i] = 1;
      t.PuntoB[i] = 2;
    }
  }

 private:
  int Intero(int da, int a) { return std::uniform_int_distribution<int>(da, a)(g_); }
  double Caso(double da, double a) { return std::uniform_real_distribution<double>(da, a)(g_); }
  bool Prob(double p) { return Caso(0, 1) < p; }
  template <class T>
  T Scegli(std::initializer_list<T> valori) {
    return *(valori.begin() + Intero(0, static_cast<int>(valori.size()) - 1));
  }
  std::int32_t Indice(const ArchivioDisegno& a) { return Intero(0, a.NumCoord - 1); }

  double Scarto() {
    if (Prob(0.1)) return Caso(-0.0002, 0.0002);
    return Scegli<double>(
        {0, 0, 0, 0.00005, -0.00005, 0.00009, -0.00009, 0.0001, 0.00011, -0.00011, 0.0002});
  }
  double Base() { return 10.0 * Intero(0, 4); }

  void NuovaCoordinata(ArchivioDisegno& a, TabelleDisegno& t) {
    double x = Base(), y = Base();
    const double scelta = Caso(0, 1);
    if (scelta < 0.04) {  // far out along a grid line: long lines over the whole drawing
      (Prob(0.5) ? x : y) += Scegli<double>({2500, 5000});
    } else if (a.NumCoord > 0 && scelta < 0.2) {  // again an earlier point, nearly
      const std::int32_t k = Indice(a);
      x = t.CoordX[k];
      y = t.CoordY[k];
    } else if (scelta < 0.4) {  // on the segment between two grid points
      const double u = Scegli<double>({0.25, 0.5, 0.75, Caso(0, 1)});
      const double bx = Base(), by = Base();
      x += u * (bx - x);
      y += u * (by - y);
    } else if (scelta < 0.55) {  // beside a segment, just inside or outside its cover
      const double bx = Base() + 10, by = Base();
      const double l = std::hypot(bx - x, by - y);
      if (l == 0) return NuovaCoordinata(a, t);
      const double eccesso = Scegli<double>({0.00009, 0.00011});
      const double h = std::sqrt((l + eccesso) * (l + eccesso) / 4 - l * l / 4);
      const double mx = (x + bx) / 2, my = (y + by) / 2;
      const double nx = -(by - y) / l, ny = (bx - x) / l;
      x = mx + h * nx;
      y = my + h * ny;
    } else if (scelta < 0.7) {  // beyond the end of a segment along it
      const double bx = Base() + 10, by = Base();
      const double l = std::hypot(bx - x, by - y);
      if (l == 0) return NuovaCoordinata(a, t);
      const double d = Scegli<double>({0.00004, 0.00006});
      x = bx + d * (bx - x) / l;
      y = by + d * (by - y) / l;
    }
    const std::int32_t i = a.NumCoord++;
    t.CoordX[i] = x + Scarto();
    t.CoordY[i] = y + Scarto();
  }

  void Arco(ArchivioDisegno& a, TabelleDisegno& t) {
    const std::int32_t i = a.NumArchi++;
    if (i > 0 && Prob(0.35)) {
      const std::int32_t j = Intero(0, i - 1);
      t.ArcCentro[i] = t.ArcCentro[j], t.ArcInizio[i] = t.ArcInizio[j];
      t.ArcCentro2[i] = t.ArcCentro2[j], t.ArcFine[i] = t.ArcFine[j];
      t.ArcColore[i] = t.ArcColore[j], t.ArcTipo[i] = t.ArcTipo[j];
      if (Prob(0.3)) t.ArcFine[i] = Indice(a);  // equal but for one field
      if (Prob(0.2)) t.ArcColore[i] = 4;
      return;
    }
    t.ArcCentro[i] = Indice(a), t.ArcInizio[i] = Indice(a);
    t.ArcCentro2[i] = Prob(0.9) ? t.ArcCentro[i] : Indice(a);
    t.ArcFine[i] = Prob(0.6) ? t.ArcInizio[i] : Indice(a);
    t.ArcColore[i] = Scegli<std::int16_t>({1, 3});
    t.ArcTipo[i] = Scegli<std::int16_t>({0, 0, 1});
  }

  std::mt19937_64 g_;
};

TEST(PuliziaDifferenziale, DisegniCasualiComeIPassiSemplici) {
  ArchivioDisegno a;
  Confronto confronta;
  for (std::uint64_t seme = 1; seme <= 2000; ++seme) {
    DisegnoCasuale(seme).Riempi(a);
    // Cells of 0.25 put their edges on the grid lines of the drawing, between a segment and
    // the points just beside it; 3.7 puts them anywhere.
    const double lato = std::array{0.0, 0.25, 3.7}[seme % 3];
    ASSERT_TRUE(confronta(a, lato)) << "seed " << seme << ", cells " << lato;
  }
}

TEST(PuliziaDifferenziale, DisegniPieniInPiccoloComeIPassiSemplici) {
  ArchivioDisegno a;
  Confronto confronta;
  for (std::int32_t linee : {40, 300, 1200}) {
    for (std::uint64_t seme = 1; seme <= 3; ++seme) {
      prova::RiempiDisegnoPieno(a, linee, seme);
      ASSERT_TRUE(confronta(a)) << linee << " lines, seed " << seme;
    }
  }
}

// Far coordinates: around 1e9, where the grid gives way to plain comparison, around 2^40, where
// a coordinate equals only itself, and infinities and NaN, which are equal to nothing and lie
// on no segment.
TEST(PuliziaDifferenziale, CoordinateLontaneENonFinite) {
  const double inf = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double grande = 1099511627776.0;  // 2^40
  const std::vector<double> valori{
      0,    1e9 - 5, 1e9,  1e9 + 5, grande - 0.0001, grande, grande + 0.000244140625, 1e12, 1e15,
      -1e9, inf,     -inf, nan,     0.00005};
  ArchivioDisegno a;
  TabelleDisegno& t = a.Tabelle();
  Confronto confronta;
  for (std::uint64_t seme = 1; seme <= 400; ++seme) {
    std::mt19937_64 g(seme);
    auto intero = [&g](int n) { return std::uniform_int_distribution<int>(0, n - 1)(g); };
    a.NumCoord = 1 + intero(30);
    for (std::int32_t i = 0; i < a.NumCoord; ++i) {
      t.CoordX[i] = valori[static_cast<std::size_t>(intero(static_cast<int>(valori.size())))];
      t.CoordY[i] = intero(3) == 0 ? t.CoordX[i] : (intero(2) ? 0 : 10);
    }
    a.NumLinee = intero(30);
    for (std::int32_t i = 0; i < a.NumLinee; ++i) {
      t.LinP1[i] = intero(a.NumCoord), t.LinP2[i] = intero(a.NumCoord);
      t.LinColore[i] = static_cast<std::int16_t>(intero(3));
      t.LinTipo[i] = static_cast<std::int16_t>(intero(2) * 4);
    }
    a.NumTesti = intero(4);
    for (std::int32_t i = 0; i < a.NumTesti; ++i) {
      t.TestoPunto[i] = intero(a.NumCoord);
      t.TestoLarghezza[i] = t.TestoAltezza[i] = 10;
    }
    ASSERT_TRUE(confronta(a)) << "seed " << seme;
  }
}

// What composition does: primitives with an origin that moves, styles, circles and texts, with
// points coming back after the search window has passed them.
TEST(PuliziaDifferenziale, DisegniFattiConLePrimitive) {
  Confronto confronta;
  for (std::uint64_t seme = 1; seme <= 60; ++seme) {
    std::mt19937_64 g(seme);
    auto intero = [&g](int da, int a) { return std::uniform_int_distribution<int>(da, a)(g); };
    PiattaformaRegistrata p;
    Sessione s{p};
    ArchivioDisegno& a = s.disegno;
    a.DestinazioneDisegno = "gendis";
    AzzeraEstensioni(a);
    const int passi = intero(20, 400);
    for (int k = 0; k < passi; ++k) {
      if (k % 25 == 0) {
        a.OrigineX = 10.0 * intero(0, 3);
        a.OrigineY = 0.00005 * intero(0, 2);
      }
      a.StileLinea = static_cast<std::int16_t>(std::array{0, 0, 1, 3}[intero(0, 3)]);
      const double x = 5.0 * intero(0, 8), y = 5.0 * intero(0, 8);
      switch (intero(0, 5)) {
        case 0:
          DisegnaCerchio(s, x, y, 5.0 * intero(0, 2), std::nullopt, 0, intero(0, 1) * 1.5);
          break;
        case 1:
          ScriviTesto(s, "q", x, y, 0, 0.04 * intero(0, 40), 2.5);
          break;
        default:
          DisegnaLinea(s, x, y, x + 5.0 * intero(-2, 2), y + 5.0 * intero(-2, 2),
                       static_cast<std::int16_t>(intero(0, 3)));
      }
    }
    ASSERT_TRUE(confronta(a)) << "seed " << seme;
  }
}

// The drawing at its limits: 50000 coordinates and lines, 15000 arcs and texts. After the
// clean-up every coordinate is used, and no two coordinates that lines, arc centres and starts
// or texts refer to stand on the same spot. (Two within the tolerance may: of a chain a, b, c
// where only neighbours are within it, c's references go to b and b's to a.)
TEST(PuliziaDisegnoPieno, OgniCoordinataUsataENessunDoppione) {
  ArchivioDisegno a;
  prova::RiempiDisegnoPieno(a, 50000, 17);
  ASSERT_EQ(a.NumCoord, 50000);
  ASSERT_EQ(a.NumLinee, 50000);
  ASSERT_EQ(a.NumArchi, 15000);
  ASSERT_EQ(a.NumTesti, 15000);
  const auto inizio = std::chrono::steady_clock::now();
  PulisciDisegno(a);
  const double secondi =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - inizio).count();
  RecordProperty("secondi", std::to_string(secondi));
  EXPECT_LT(secondi, 30) << "the clean-up has turned quadratic";
  EXPECT_LT(a.NumLinee, 50000);
  EXPECT_LT(a.NumCoord, 50000);

  const TabelleDisegno& t = a.Tabelle();
  std::vector<bool> usata(static_cast<std::size_t>(a.NumCoord)), diLinea(usata.size());
  auto segna = [&](std::int32_t i, bool linea) {
    usata[static_cast<std::size_t>(i)] = true;
    if (linea) diLinea[static_cast<std::size_t>(i)] = true;
  };
  for (std::int32_t i = 0; i < a.NumLinee; ++i) {
    segna(t.LinP1[i], true);
    segna(t.LinP2[i], true);
  }
  for (std::int32_t i = 0; i < a.NumArchi; ++i) {
    segna(t.ArcCentro[i], true);
    segna(t.ArcInizio[i], true);
    segna(t.ArcCentro2[i], true);
    segna(t.ArcFine[i], false);
  }
  for (std::int32_t i = 0; i < a.NumTesti; ++i) segna(t.TestoPunto[i], true);
  EXPECT_EQ(std::count(usata.begin(), usata.end(), false), 0);

  std::vector<std::int32_t> ordine;
  for (std::int32_t i = 0; i < a.NumCoord; ++i) {
    if (diLinea[static_cast<std::size_t>(i)]) ordine.push_back(i);
  }
  auto prima = [&t](std::int32_t x, std::int32_t y) {
    return std::pair(t.CoordX[x], t.CoordY[x]) < std::pair(t.CoordX[y], t.CoordY[y]);
  };
  std::sort(ordine.begin(), ordine.end(), prima);
  int doppioni = 0, vicini = 0;
  for (std::size_t k = 0; k + 1 < ordine.size(); ++k) {
    doppioni += !prima(ordine[k], ordine[k + 1]) ? 1 : 0;
    vicini += std::abs(t.CoordX[ordine[k + 1]] - t.CoordX[ordine[k]]) < 0.0001 &&
                      std::abs(t.CoordY[ordine[k + 1]] - t.CoordY[ordine[k]]) < 0.0001
                  ? 1
                  : 0;
  }
  EXPECT_EQ(doppioni, 0);
  EXPECT_GT(vicini, 0) << "the drawing was meant to hold chains of near points";
}

}  // namespace
}  // namespace qf17
