// The GRB sheet: sizes by style or by option, what a detail's factor, circles and hole numbers
// make of it, and the executive sheet composed through it holding the DIS sheet's drawing.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/composizione.h"
#include "disegno/esecutivo/tavola_dis.h"
#include "disegno/grb/tavola_grb.h"
#include "disegno/leggi_stili_grb.h"
#include "nodo/esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "quote_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

const fs::path kModello = fs::path(QF17_SORGENTI) / "installazione" / "custom" / "cad2dmodello.grb";

class TavolaGrbTest : public ::testing::Test, public prova::SessioneQuote {
 protected:
  void SetUp() override {
    // Option sizes all different, so that a size tells where it came from.
    const double dimensioni[] = {3, 4, 5, 6, 7, 8};  // rows 7 to 12
    for (int i = 0; i < 6; ++i) s.opzioni[7 + i] = dimensioni[i];
  }
  const TabelleDisegno& T() const { return s.disegno.Tabelle(); }
  double X(std::int32_t i) const { return T().CoordX[i]; }
  double Y(std::int32_t i) const { return T().CoordY[i]; }

  TavolaGrb t{s};
};

TEST_F(TavolaGrbTest, DimensioniDagliStiliODalleOpzioni) {
  struct Caso {
    const char* come;
    bool modello;
    double stileTesti, stileQuote;
    // width and height of dimension, text and table texts
    double lq, aq, lt, at, ld, ad;
  };
  // The installation's template, tenths at scale 4: style 5 70 / 10 x 4 = 28, style 8 40,
  // style 1 7.2, style 6 8. Without it, or for a style it lacks, the options: dimensions 4 x 3,
  // texts 6 x 5, tables 8 x 7.
  const Caso casi[] = {
      {"stili 5 e 8", true, 5, 8, 40, 40, 28, 28, 28, 28},
      {"stile 9 assente", true, 9, 6, 8, 8, 6, 5, 8, 7},
      {"stile 0", true, 5, 0, 4, 3, 28, 28, 28, 28},
      {"senza modello", false, 5, 8, 4, 3, 6, 5, 8, 7},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(c.come);
    if (c.modello) {
      LeggiStiliGRB(s.stiliGrb, kModello, p);
    } else {
      LeggiStiliGRB(s.stiliGrb, fs::path(QF17_DATI_TEST) / "assente" / "cad2dmodello.grb", p);
    }
    s.opzioni[28] = c.stileTesti;
    s.opzioni[29] = c.stileQuote;
    EXPECT_DOUBLE_EQ(t.Larghezza(ClasseTesto::Quote), c.lq);
    EXPECT_DOUBLE_EQ(t.Altezza(ClasseTesto::Quote), c.aq);
    EXPECT_DOUBLE_EQ(t.Larghezza(ClasseTesto::Testi), c.lt);
    EXPECT_DOUBLE_EQ(t.Altezza(ClasseTesto::Testi), c.at);
    EXPECT_DOUBLE_EQ(t.Larghezza(ClasseTesto::Distinta), c.ld);
    EXPECT_DOUBLE_EQ(t.Altezza(ClasseTesto::Distinta), c.ad);
  }
  EXPECT_EQ(p.messaggi.size(), 1u);  // the missing template, told once at its reading
}

TEST_F(TavolaGrbTest, QuotaDiventaUnEntita) {
  struct Caso {
    const char* come;
    double x1, x2, y1, y2, fattore;
    std::string testo;
    // expected ends on the sheet (origin 100, 50) and text
    double px1, py1, px2, py2;
    const char* tipo;
    const char* scritto;
  };
  const Caso casi[] = {
      // Downward is turned upward, as the DIS sheet orders its ends.
      {"verticale", 5, 5, 40, 0, -1, "", 105, 50, 105, 90, "V", "Stringa_di_default"},
      // A detail drawn twice as large reads true millimetres: 50 x 0.5 = 25.
      {"dettaglio", 0, 30, 0, 40, 0.5, "", 100, 50, 130, 90, "P", "25"},
      // 0.1 x 12.345 = 1.2345, to one decimal 1.2.
      {"dettaglio piccolo", 0, 12.345, 0, 0, 0.1, "", 100, 50, 112.345, 50, "H", "1.2"},
  };
  s.opzioni[29] = 6;
  s.disegno.OrigineX = 100;
  s.disegno.OrigineY = 50;
  for (const auto& c : casi) {
    SCOPED_TRACE(c.come);
    AzzeraDisegno(s.disegno);
    t.Quota(c.testo, c.x1, c.x2, c.y1, c.y2, 10, c.fattore);
    ASSERT_EQ(s.disegno.NumQuote, 1);
    EXPECT_EQ(s.disegno.NumLinee, 0);  // the editor draws the dimension
    EXPECT_EQ(s.disegno.NumArchi, 0);
    EXPECT_EQ(s.disegno.NumTesti, 0);
    EXPECT_DOUBLE_EQ(X(T().QuotaP1[0]), c.px1);
    EXPECT_DOUBLE_EQ(Y(T().QuotaP1[0]), c.py1);
    EXPECT_DOUBLE_EQ(X(T().QuotaP2[0]), c.px2);
    EXPECT_DOUBLE_EQ(Y(T().QuotaP2[0]), c.py2);
    EXPECT_EQ(T().QuotaTipo[0], c.tipo);
    EXPECT_EQ(T().QuotaTesto[0], c.scritto);
    EXPECT_EQ(T().QuotaStile[0], 6);
    EXPECT_DOUBLE_EQ(T().QuotaScost[0], 0.0);  // the line where the DIS sheet draws it
  }
}

TEST_F(TavolaGrbTest, LeQuoteAllarganoLeEstensioniComeSulDis) {
  // As the DIS dimension: its ends and arrow heads (5 tan 15 = 1.3397459621556 across the line;
  // on a line of 8 < 2 x 5 they point outward, 5 beyond each end), not its circles.
  const double t15 = 1.3397459621556;
  struct Caso {
    const char* come;
    double freccia;  // option 27
    double x1, x2, y1, y2;
    double xmin, xmax, ymin, ymax;  // with the origin (100, 0)
  };
  const Caso casi[] = {
      {"frecce verso l'esterno", 1, 0, 8, 0, 0, 95, 113, -t15, t15},
      {"cerchi", 0, 0, 8, 0, 0, 100, 108, 0, 0},
      {"nessuna lunghezza", 1, 7, 7, -3, -3, 107, 107, -3, -3},
  };
  s.opzioni[14] = 5;
  s.disegno.OrigineX = 100;
  for (const auto& c : casi) {
    SCOPED_TRACE(c.come);
    s.opzioni[27] = c.freccia;
    AzzeraEstensioni(s.disegno);
    t.Quota("", c.x1, c.x2, c.y1, c.y2, 10, 1);
    EXPECT_NEAR(s.disegno.EstMinX, c.xmin, 1e-9);
    EXPECT_NEAR(s.disegno.EstMaxX, c.xmax, 1e-9);
    EXPECT_NEAR(s.disegno.EstMinY, c.ymin, 1e-9);
    EXPECT_NEAR(s.disegno.EstMaxY, c.ymax, 1e-9);
  }
}

TEST_F(TavolaGrbTest, TestiPerStileEAncora) {
  LeggiStiliGRB(s.stiliGrb, kModello, p);
  s.opzioni[28] = 2;  // 25 tenths x 4: 10
  s.opzioni[29] = 6;  // 20 tenths x 4: 8
  struct Caso {
    const char* come;
    int chiamata;  // 0 TestoCentrato, 1 Testo
    double x1, x2, y1, y2, distanza;
    std::int16_t angolo;  // for Testo
    ClasseTesto classe;
    // expected: anchor, angle, mode, style, sizes in tenths
    double x, y;
    std::int16_t gradi, modo, stile, decimi;
  };
  const Caso casi[] = {
      // Downward turned upward, angle +90; 3 to the left of upward is -X: (-3, 5).
      {"verticale", 0, 0, 0, 10, 0, 3, 0, ClasseTesto::Testi, -3, 5, 90, 1, 2, 100},
      // (0, 0)-(40, 30): 36.87 degrees rounded to 37; length 50, 5 to the left:
      // (-30, 40) x 5 / 50 = (-3, 4) from the middle (20, 15).
      {"obliqua", 0, 0, 40, 0, 30, 5, 0, ClasseTesto::Quote, 17, 19, 37, 1, 6, 80},
      {"numero di foro", 1, 12, 0, 34, 0, 0, -45, ClasseTesto::Quote, 12, 34, -45, 0, 6, 80},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(c.come);
    AzzeraDisegno(s.disegno);
    if (c.chiamata == 0) {
      t.TestoCentrato("12", c.x1, c.x2, c.y1, c.y2, c.distanza, c.classe, 5);
    } else {
      t.Testo("12", c.x1, c.y1, c.angolo, c.classe, 5);
    }
    ASSERT_EQ(s.disegno.NumTesti, 1);
    EXPECT_EQ(s.disegno.NumQuote, 0);
    EXPECT_NEAR(X(T().TestoPunto[0]), c.x, 1e-12);
    EXPECT_NEAR(Y(T().TestoPunto[0]), c.y, 1e-12);
    EXPECT_EQ(T().TestoAngolo[0], c.gradi);
    EXPECT_EQ(T().TestoAllineamento[0], c.modo);
    EXPECT_EQ(T().TestoColore[0], c.stile);
    EXPECT_EQ(T().TestoLarghezza[0], c.decimi);
    EXPECT_EQ(T().TestoAltezza[0], c.decimi);
  }
}

// The DIS sheet, marking the lines, arcs and texts its dimensions drew.
class TavolaDisSegnata : public TavolaDis {
 public:
  using TavolaDis::TavolaDis;
  void Quota(const std::string& testo, double x1, double x2, double y1, double y2, double distanza,
             double fattore) override {
    const ArchivioDisegno& a = S().disegno;
    const std::int32_t prima[] = {a.NumLinee, a.NumArchi, a.NumTesti};
    TavolaDis::Quota(testo, x1, x2, y1, y2, distanza, fattore);
    const std::int32_t dopo[] = {a.NumLinee, a.NumArchi, a.NumTesti};
    for (int k = 0; k < 3; ++k) {
      for (std::int32_t i = prima[k]; i < dopo[k]; ++i) diQuota[k].insert(i);
    }
    if (std::abs(x1 - x2) >= 0.0001 || std::abs(y1 - y2) >= 0.0001) ++quote;
  }
  std::set<std::int32_t> diQuota[3];  // lines, arcs, texts
  int quote = 0;
};

struct Segno {
  double x1, y1, x2, y2;
  std::int16_t colore, tipo;
};

void Componi(Sessione& s, Tavola& t) {
  AzzeraDisegno(s.disegno);
  s.disegno.DestinazioneDisegno = "gendis";
  ComponiEsecutivo(t);
  s.disegno.DestinazioneDisegno.clear();
}

// Lines by their ends, or arcs by centre and start, but those the DIS sheet's dimensions drew.
std::vector<Segno> Segni(const ArchivioDisegno& a, bool archi, const TavolaDisSegnata* dis) {
  const TabelleDisegno& t = a.Tabelle();
  std::vector<Segno> r;
  for (std::int32_t i = 0; i < (archi ? a.NumArchi : a.NumLinee); ++i) {
    if (dis && dis->diQuota[archi ? 1 : 0].count(i)) continue;
    const std::int32_t p = archi ? t.ArcCentro[i] : t.LinP1[i];
    const std::int32_t q = archi ? t.ArcInizio[i] : t.LinP2[i];
    r.push_back({t.CoordX[p], t.CoordY[p], t.CoordX[q], t.CoordY[q],
                 archi ? t.ArcColore[i] : t.LinColore[i], archi ? t.ArcTipo[i] : t.LinTipo[i]});
  }
  return r;
}

std::vector<std::string> Testi(const ArchivioDisegno& a, const TavolaDisSegnata* dis) {
  std::vector<std::string> r;
  for (std::int32_t i = 0; i < a.NumTesti; ++i) {
    if (!dis || !dis->diQuota[2].count(i)) r.push_back(a.Tabelle().TestoStringa[i]);
  }
  return r;
}

void StessiSegni(const std::vector<Segno>& dis, const std::vector<Segno>& grb) {
  ASSERT_EQ(dis.size(), grb.size());
  // Ends found by the bounded coordinate search may be an equal coordinate's, 0.0001 away.
  for (std::size_t i = 0; i < dis.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_NEAR(dis[i].x1, grb[i].x1, 2e-4);
    EXPECT_NEAR(dis[i].y1, grb[i].y1, 2e-4);
    EXPECT_NEAR(dis[i].x2, grb[i].x2, 2e-4);
    EXPECT_NEAR(dis[i].y2, grb[i].y2, 2e-4);
    EXPECT_EQ(dis[i].colore, grb[i].colore);
    EXPECT_EQ(dis[i].tipo, grb[i].tipo);
  }
}

// With the installation's template the GRB styles have the sizes of the options (text style 2:
// 10 x 10 like options 9 to 12, dimension style 6: 8 x 8 like options 7 and 8), so the one
// composition lays out both sheets alike: the GRB sheet holds the DIS sheet's lines, arcs and
// texts but those its dimensions drew, and one entity for each dimension.
TEST(GrbComposizione, StessoDisegnoDelDis) {
  for (const char* nodo : {"ANGUPN.qf7", "DOPPIO.qf7", "HEASALD.qf7", "MOLTESOLL.qf7"}) {
    SCOPED_TRACE(nodo);
    PiattaformaRegistrata p;
    Sessione s{p};
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s));
    LeggiStiliGRB(s.stiliGrb, kModello, p);
    ASSERT_TRUE(s.stiliGrb.Letti);
    ASSERT_TRUE(ApriNodoDaFile(s, prova::CartellaEsempi() / nodo));
    s.opzioni.QuoteSaldature = true;

    TavolaDisSegnata dis(s);
    Componi(s, dis);
    const ArchivioDisegno disegnoDis = s.disegno;
    TavolaGrb grb(s);
    Componi(s, grb);
    const ArchivioDisegno& disegnoGrb = s.disegno;

    const auto lineeDis = Segni(disegnoDis, false, &dis);
    ASSERT_GT(lineeDis.size(), 100u);
    ASSERT_GT(dis.quote, 10);
    ASSERT_LT(lineeDis.size(), static_cast<std::size_t>(disegnoDis.NumLinee));
    StessiSegni(lineeDis, Segni(disegnoGrb, false, nullptr));
    StessiSegni(Segni(disegnoDis, true, &dis), Segni(disegnoGrb, true, nullptr));
    EXPECT_EQ(Testi(disegnoDis, &dis), Testi(disegnoGrb, nullptr));
    EXPECT_EQ(disegnoGrb.NumQuote, dis.quote);
    EXPECT_DOUBLE_EQ(disegnoGrb.EstMaxX, disegnoDis.EstMaxX);
    EXPECT_DOUBLE_EQ(disegnoGrb.EstMinY, disegnoDis.EstMinY);
    EXPECT_TRUE(p.messaggi.empty());
  }
}

}  // namespace
}  // namespace qf17
