// The bill of materials of the executive sheet: sections, gusset, welds, bolts and the hole
// coordinates, each a ruled table of centred cells.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "disegno/archivio_disegno_primitive.h"
#include "disegno/esecutivo/composizione.h"
#include "disegno/esecutivo/fazzoletto_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "disegno/esecutivo/tavola.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"
#include "verifica/comuni.h"

namespace qf17 {
namespace {

// Rows left empty between two tables.
constexpr int kRigheTraTabelle = 2;

struct TabellaTesti {
  std::vector<std::string> intestazioni;
  std::vector<std::vector<std::string>> righe;
  std::vector<double> larghezze;  // of the columns, in characters
  int Righe() const { return static_cast<int>(righe.size()) + 1; }
};

double Caratteri(const std::string& testo) {
  return static_cast<double>(NumeroCaratteri(testo));
}

// Each column as wide as its longest text plus `margine` characters.
void LarghezzeDaTesti(TabellaTesti& tab, double margine) {
  tab.larghezze.clear();
  for (std::size_t c = 0; c < tab.intestazioni.size(); ++c) {
    double n = Caratteri(tab.intestazioni[c]);
    for (const auto& riga : tab.righe) n = std::max(n, Caratteri(riga[c]));
    tab.larghezze.push_back(n + margine);
  }
}

bool CorrenteSaldato(const Nodo& n) {
  return n.Corrente.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT);
}

int ProfiliAsta(const Nodo& n, int i) {
  return n.Ast_modo[i] == static_cast<std::int16_t>(AstModo::Singola) ? 1 : 2;
}

std::string Numero(double v) {
  return TestoNumero(v + 0.0);
}

// The texts of one table into the drawing with the top left corner at (x, y): each cell
// centred on its row's segment, then the ruling.
void ScriviTabella(Tavola& t, const TabellaTesti& tab, double x, double y, double passo) {
  const double w = t.Larghezza(ClasseTesto::Distinta);
  const double h = t.Altezza(ClasseTesto::Distinta);
  const auto colore = static_cast<std::int16_t>(t.S().opzioni[6]);
  std::vector<double> colonne;
  for (const double c : tab.larghezze) colonne.push_back(c * w);
  auto riga = [&](const std::vector<std::string>& testi, int r) {
    const double yr = y - r * passo;
    double xc = x;
    for (std::size_t c = 0; c < testi.size(); ++c) {
      t.TestoCentrato(testi[c], xc, xc + colonne[c], yr, yr, h / 4, ClasseTesto::Distinta, colore);
      xc += colonne[c];
    }
  };
  riga(tab.intestazioni, 1);
  for (std::size_t r = 0; r < tab.righe.size(); ++r) riga(tab.righe[r], static_cast<int>(r) + 2);
  GrigliaTabella(t, x, y, passo, tab.Righe(), colonne);
}

TabellaTesti TabellaProfili(const Sessione& s) {
  const Nodo& n = s.nodo;
  const Profilo& c = n.Corrente;
  TabellaTesti tab;
  tab.intestazioni = {"Prof.", "num.", "h", "b", "a", "e"};
  const int numCorrente = CorrenteSaldato(n) ? 1 : 2;
  tab.righe.push_back(
      {c.Nome, Numero(numCorrente), Numero(c.h), Numero(c.b), Numero(c.a), Numero(c.e)});
  tab.larghezze = {Caratteri(c.Nome) + 2, 6};
  for (std::size_t k = 2; k < 6; ++k) tab.larghezze.push_back(Caratteri(tab.righe[0][k]) + 2);
  for (const auto& [nome, numero] : ListaProfili(s)) {
    const Profilo* p = nullptr;
    for (int i = 1; i <= kMaxAste && p == nullptr; ++i) {
      if (n.Ast_flag[i] == 1 && n.Aste[i].Nome == nome) p = &n.Aste[i];
    }
    tab.righe.push_back(
        {nome, Numero(numero), Numero(p->h), Numero(p->b), Numero(p->a), Numero(p->e)});
    tab.larghezze[0] = std::max(tab.larghezze[0], Caratteri(nome) + 2);
    for (std::size_t k = 2; k < 6; ++k) tab.larghezze[k] = std::max(tab.larghezze[k], 10.0);
  }
  return tab;
}

TabellaTesti TabellaFazzoletto(const Nodo& n) {
  double altezza = std::max(n.Fz_e + n.Fz_f, n.Fz_g + n.Fz_h);
  if (!CorrenteSaldato(n)) altezza += n.Corrente.h;
  TabellaTesti tab;
  tab.intestazioni = {"N. fazz.", "l", "h", "s"};
  tab.righe.push_back(
      {"1", Numero(n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d), Numero(altezza), Numero(n.Fz_s)});
  LarghezzeDaTesti(tab, 2);
  tab.larghezze[3] -= 1;
  return tab;
}

// The one weld of the joint, between the gusset and a chord of kind 2: numbered 1 as the
// reports number it, its length along the chord and its leg.
TabellaTesti TabellaSaldature(const Nodo& n) {
  TabellaTesti tab;
  tab.intestazioni = {"Sald.", "lungh", "lato"};
  tab.righe.push_back({"1", Numero(n.Saldature(4, 1).Sld_L), Numero(n.Lato_Sald)});
  LarghezzeDaTesti(tab, 2);
  return tab;
}

TabellaTesti TabellaBulloni(const Sessione& s) {
  TabellaTesti tab;
  tab.intestazioni = {"N. bull.", "fi", "Classe", "] Foro"};
  for (const auto& [d, numero] : ListaFori(s)) {
    tab.righe.push_back(
        {Numero(numero), Numero(d), s.nodo.vite.Nome, Numero(DiamForo(s.opzioni, d))});
  }
  LarghezzeDaTesti(tab, 2);
  return tab;
}

}  // namespace

std::vector<std::pair<std::string, int>> ListaProfili(const Sessione& s) {
  const Nodo& n = s.nodo;
  std::vector<std::pair<std::string, int>> lista;
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    auto it = std::find_if(lista.begin(), lista.end(),
                           [&](const auto& voce) { return voce.first == n.Aste[i].Nome; });
    if (it == lista.end()) {
      lista.emplace_back(n.Aste[i].Nome, ProfiliAsta(n, i));
    } else {
      it->second += ProfiliAsta(n, i);
    }
  }
  return lista;
}

std::vector<std::pair<double, int>> ListaFori(const Sessione& s) {
  const Nodo& n = s.nodo;
  std::vector<std::pair<double, int>> lista;
  auto aggiungi = [&](int gruppo, int volte) {
    for (int k = 1; k <= n.nBull[gruppo]; ++k) {
      const double d = n.FiBull(gruppo, k);
      auto it = std::find_if(lista.begin(), lista.end(), [&](const auto& voce) {
        return std::abs(voce.first - d) < kTolleranzaDisegno;
      });
      if (it == lista.end()) {
        lista.emplace_back(d, volte);
      } else {
        it->second += volte;
      }
    }
  };
  if (!CorrenteSaldato(n)) aggiungi(0, 1);
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    aggiungi(i, n.Ast_modo[i] == static_cast<std::int16_t>(AstModo::Opposta) ? 2 : 1);
  }
  return lista;
}

void GrigliaTabella(Tavola& t, double x, double y, double passo, int righe,
                    const std::vector<double>& colonne) {
  Sessione& s = t.S();
  const auto colore = static_cast<std::int16_t>(s.opzioni[2]);
  s.disegno.StileLinea = 0;
  double larghezza = 0;
  for (const double c : colonne) larghezza += c;
  const double fondo = y - righe * passo;
  for (int r = 0; r <= righe; ++r)
    DisegnaLinea(s, x, y - r * passo, x + larghezza, y - r * passo, colore);
  double xc = x;
  DisegnaLinea(s, xc, y, xc, fondo, colore);
  for (const double c : colonne) {
    xc += c;
    DisegnaLinea(s, xc, y, xc, fondo, colore);
  }
}

int DisegnaTabellaCoordinate(Tavola& t, const StatoEsecutivo& stato, double x, double y,
                             double passo) {
  const Sessione& s = t.S();
  TabellaTesti tab;
  tab.intestazioni = {"n°", "X", "Y", "] Foro"};
  for (const int g : GruppiForiFazzoletto(s)) {
    const int gruppo = GruppoBulloni(g);
    for (int k = 1; k <= s.nodo.nBull[gruppo]; ++k) {
      tab.righe.push_back({TestoNumero(static_cast<long long>(stato.ForoNumero(g, k))),
                           Numero(Arrot1(stato.ForoX(g, k))), Numero(Arrot1(stato.ForoY(g, k))),
                           Numero(DiamForo(s.opzioni, s.nodo.FiBull(gruppo, k)))});
    }
  }
  LarghezzeDaTesti(tab, 2);
  ScriviTabella(t, tab, x, y, passo);
  return tab.Righe();
}

double DisegnaDistinta(Tavola& t, const StatoEsecutivo& stato) {
  const Sessione& s = t.S();
  const double passo = 1.5 * t.Altezza(ClasseTesto::Distinta);
  double y = 0;
  auto dopo = [&](int righe) { y -= (righe + kRigheTraTabelle) * passo; };
  const TabellaTesti profili = TabellaProfili(s);
  ScriviTabella(t, profili, 0, y, passo);
  dopo(profili.Righe());
  const TabellaTesti fazzoletto = TabellaFazzoletto(s.nodo);
  ScriviTabella(t, fazzoletto, 0, y, passo);
  dopo(fazzoletto.Righe());
  if (CorrenteSaldato(s.nodo)) {
    const TabellaTesti saldature = TabellaSaldature(s.nodo);
    ScriviTabella(t, saldature, 0, y, passo);
    dopo(saldature.Righe());
  }
  const TabellaTesti bulloni = TabellaBulloni(s);
  ScriviTabella(t, bulloni, 0, y, passo);
  if (stato.ModoForiFazzoletto == 1) return y - bulloni.Righe() * passo;
  dopo(bulloni.Righe());
  return y - DisegnaTabellaCoordinate(t, stato, 0, y, passo) * passo;
}

}  // namespace qf17
