// The composed sheet of the sample nodes where their golden sheets (test_esecutivo_esempi) do not
// reach: the tables switched off, the node numbers in the title, the weld, the holes numbered.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "composizione_prova.h"
#include "disegno/esecutivo/composizione.h"
#include "disegno/esecutivo/fazzoletto_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "librerie/numeri.h"
#include "nodo/esempi_nodo.h"
#include "piattaforma/file_testo.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

using prova::ChiamataTavola;
using prova::Richiesta;

TEST(TitoloEsecutivo, NumeriDeiNodi) {
  struct Caso {
    std::vector<int> nodi;
    std::string titolo;
  };
  const Caso casi[] = {
      {{}, "ESECUTIVO NODI"},
      {{12, 14}, "ESECUTIVO NODI: 12,14"},
      {{-3, 0, 1200}, "ESECUTIVO NODI: -3,0,1200"},
  };
  for (const Caso& c : casi) {
    PiattaformaRegistrata p;
    Sessione s(p);
    s.nodo.NumNodi = static_cast<std::int16_t>(c.nodi.size());
    for (std::size_t i = 0; i < c.nodi.size(); ++i) {
      s.nodo.NomeNodi[static_cast<int>(i) + 1] = static_cast<std::int16_t>(c.nodi[i]);
    }
    EXPECT_EQ(TitoloEsecutivo(s), c.titolo);
  }
}

class Composizione : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s_));
    for (auto& e : prova::EsempiNodo(s_)) esempi_[e.file] = e.nodo;
  }
  void Componi(const std::string& file) {
    ASSERT_EQ(esempi_.count(file), 1u) << file;
    s_.nodo = esempi_[file];
    prova::PreparaDisegno(s_);
    t_ = std::make_unique<prova::TavolaComposizione>(s_);
    ComponiEsecutivo(*t_, *stato_);
  }
  const ChiamataTavola* Chiamata(const std::string& testo) const {
    for (const auto& c : t_->chiamate) {
      if (c.testo == testo) return &c;
    }
    return nullptr;
  }

  PiattaformaRegistrata p_;
  Sessione s_{p_};
  std::map<std::string, Nodo> esempi_;
  std::unique_ptr<prova::TavolaComposizione> t_;
  std::unique_ptr<StatoEsecutivo> stato_ = std::make_unique<StatoEsecutivo>();
};

// Without the tables the title is centred on the views' extents, which its own segment does not
// move; the note follows 2 text heights (10) lower.
TEST_F(Composizione, TitoloCentratoSenzaDistinta) {
  s_.opzioni[18] = 0;
  Componi("ANGUPN.qf7");
  const ChiamataTavola* titolo = Chiamata("ESECUTIVO NODI");
  ASSERT_NE(titolo, nullptr);
  const ArchivioDisegno& d = s_.disegno;
  const double centro = (d.EstMaxX + d.EstMinX) / 2;
  EXPECT_DOUBLE_EQ(titolo->x1, centro - 1);
  EXPECT_DOUBLE_EQ(titolo->x2, centro + 1);
  EXPECT_EQ(titolo->y1, titolo->y2);
  const ChiamataTavola* nota = Chiamata(s_.opzioni.NotaDisegno);
  ASSERT_NE(nota, nullptr);
  EXPECT_DOUBLE_EQ(nota->x1, centro - 1);
  EXPECT_DOUBLE_EQ(nota->y1, titolo->y1 - 2 * 10);
  EXPECT_TRUE(t_->TestiDistinta().empty());
  EXPECT_EQ(Chiamata("Prof."), nullptr);
}

// The box a stored text covers: its cell of width x characters by height, turned round its
// anchor.
struct Scatola {
  double minX = 1e300, maxX = -1e300, minY = 1e300, maxY = -1e300;
};
Scatola ScatolaTesto(const ArchivioDisegno& a, int i) {
  const TabelleDisegno& t = a.Tabelle();
  const double x = t.CoordX[t.TestoPunto[i]], y = t.CoordY[t.TestoPunto[i]];
  const double l =
      static_cast<double>(NumeroCaratteri(t.TestoStringa[i])) * t.TestoLarghezza[i] / 10;
  const double h = t.TestoAltezza[i] / 10.0;
  const double an = t.TestoAngolo[i] * 3.14159265358979 / 180;
  Scatola b;
  for (const Punto p : {Punto{0, 0}, Punto{l, 0}, Punto{0, h}, Punto{l, h}}) {
    const double px = x + p.x * std::cos(an) - p.y * std::sin(an);
    const double py = y + p.x * std::sin(an) + p.y * std::cos(an);
    b.minX = std::min(b.minX, px), b.maxX = std::max(b.maxX, px), b.minY = std::min(b.minY, py);
    b.maxY = std::max(b.maxY, py);
  }
  return b;
}
bool SiToccano(const Scatola& a, const Scatola& b) {
  return a.minX < b.maxX && b.minX < a.maxX && a.minY < b.maxY && b.minY < a.maxY;
}

// The title and the note overlap no text of the views, though the texts of the topmost chain
// stand above the extents, which count lines only.
TEST_F(Composizione, TitoloENotaNonCopronoAltriTesti) {
  for (const char* file : {"ANGUPN.qf7", "DOPPIO.qf7", "HEASALD.qf7", "MOLTESOLL.qf7"}) {
    SCOPED_TRACE(file);
    s_.opzioni[18] = 0;
    Componi(file);
    const ArchivioDisegno& a = s_.disegno;
    const TabelleDisegno& t = a.Tabelle();
    std::vector<int> testata;
    for (int i = 0; i < a.NumTesti; ++i) {
      if (t.TestoStringa[i].starts_with("ESECUTIVO NODI") ||
          t.TestoStringa[i] == s_.opzioni.NotaDisegno) {
        testata.push_back(i);
      }
    }
    ASSERT_EQ(testata.size(), 2u);
    for (int i = 0; i < a.NumTesti; ++i) {
      if (i == testata[0] || i == testata[1]) continue;
      for (int j : testata) {
        EXPECT_FALSE(SiToccano(ScatolaTesto(a, i), ScatolaTesto(a, j)))
            << t.TestoStringa[i] << " / " << t.TestoStringa[j];
      }
    }
  }
}

TEST_F(Composizione, TitoloConINumeriDeiNodi) {
  Componi("MOLTESOLL.qf7");
  EXPECT_NE(Chiamata("ESECUTIVO NODI: 127,128"), nullptr);
}

// The one weld of the model joins the gusset to a chord of kind 2 (HEASALD, HEA200): its marks
// along the plate's edge on the chord and its table, numbered 1, its length the plate's along
// the chord (150 + 300 + 300 + 150) and its leg 7. The weld takes 900 / 7 + 0.5 -> 129 steps:
// 128 ticks inside, 2 end ticks and the closing line. A bolted chord (ANGUPN, UPN160) has
// neither, and has its strip detail instead.
TEST_F(Composizione, SaldaturaSoloSulCorrenteSaldato) {
  struct Caso {
    const char* file;
    bool saldato;
  };
  for (const Caso& c : {Caso{"HEASALD.qf7", true}, Caso{"ANGUPN.qf7", false}}) {
    SCOPED_TRACE(c.file);
    s_.opzioni[20] = 7;  // the weld's colour, used by nothing else
    Componi(c.file);
    const std::vector<std::string> tabella = {"Sald.", "lungh", "lato", "1", "900", "7"};
    const std::vector<std::string> celle = t_->TestiDistinta();
    const bool conTabella =
        std::search(celle.begin(), celle.end(), tabella.begin(), tabella.end()) != celle.end();
    EXPECT_EQ(conTabella, c.saldato);
    EXPECT_EQ(Chiamata("Sald.") != nullptr, c.saldato);
    int tacche = 0;
    for (int i = 0; i < s_.disegno.NumLinee; ++i) {
      tacche += s_.disegno.Tabelle().LinColore[i] == 7 ? 1 : 0;
    }
    EXPECT_EQ(tacche, c.saldato ? 131 : 0);
    EXPECT_EQ(Chiamata("PARTICOLARE FORATURA DEL CORRENTE") != nullptr, !c.saldato);
  }
}

// Each number written beside a hole of the gusset detail is the row of the coordinate table
// that gives that hole's position from the table's origin (the node's point on the chord's
// axis) and its diameter; every row is written once. DOPPIO has a turned chord and an opposite
// pair; the multiplier 2 doubles the drawing, not the figures.
TEST_F(Composizione, NumeriDelDettaglioComeLaTabella) {
  for (double k : {1.0, 2.0}) {
    SCOPED_TRACE(k);
    s_.opzioni[24] = 0;
    s_.opzioni[21] = k;
    Componi("DOPPIO.qf7");
    // The table: the cells after the heading "n°", four a row.
    std::map<std::string, std::vector<std::string>> righe;
    const auto celle = t_->TestiDistinta();
    auto inizio = std::find(celle.begin(), celle.end(), "n°");
    ASSERT_NE(inizio, celle.end());
    for (auto it = inizio + 4; it + 3 < celle.end() + 0 && it != celle.end(); it += 4) {
      righe[*it] = {*(it + 1), *(it + 2), *(it + 3)};
    }
    const Nodo& n = s_.nodo;
    int fori = 0;
    for (int g = 0; g <= 3; ++g) fori += n.nBull[g] * (g > 0 && n.Ast_modo[g] == 2 ? 2 : 1);
    ASSERT_EQ(righe.size(), static_cast<std::size_t>(fori));

    const ChiamataTavola* titolo = Chiamata("PARTICOLARE FAZZOLETTO");
    ASSERT_NE(titolo, nullptr);
    const Punto origine{titolo->origineX + (n.Fz_a + n.Fz_b) * k, titolo->origineY};
    const auto cerchi = prova::Cerchi(s_.disegno);
    const double w = t_->Larghezza(ClasseTesto::Quote), h = t_->Altezza(ClasseTesto::Quote);
    int trovati = 0;
    for (const ChiamataTavola& c : t_->Di(Richiesta::Testo)) {
      if (c.classe != ClasseTesto::Quote || c.origineY != titolo->origineY) continue;
      SCOPED_TRACE(c.testo);
      // The number's hole is the one nearest to the number's box.
      const auto foro = std::min_element(cerchi.begin(), cerchi.end(), [&](auto& a, auto& b) {
        return prova::MargineDalForo(c, w, h, a) < prova::MargineDalForo(c, w, h, b);
      });
      ASSERT_NE(foro, cerchi.end());
      ASSERT_EQ(righe.count(c.testo), 1u);
      const auto& riga = righe[c.testo];
      EXPECT_NEAR(NumeroIniziale(riga[0]), (foro->centro.x - origine.x) / k, 0.05 + 1e-9);
      EXPECT_NEAR(NumeroIniziale(riga[1]), (foro->centro.y - origine.y) / k, 0.05 + 1e-9);
      EXPECT_NEAR(NumeroIniziale(riga[2]), 2 * foro->raggio / k, 1e-9);
      ++trovati;
    }
    EXPECT_EQ(trovati, fori);
  }
}

}  // namespace
}  // namespace qf17
