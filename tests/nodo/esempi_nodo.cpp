#include "esempi_nodo.h"

#include <cmath>
#include <initializer_list>
#include <utility>

#include "librerie/libreria_profili.h"
#include "librerie/materiali.h"
#include "librerie/numeri.h"
#include "nodo/nodo_default.h"
#include "sessione_prova.h"

namespace qf17::prova {
namespace {

struct Bullone {
  double x, y;
};

void Bulloni(Nodo& n, int gruppo, double diametro, std::initializer_list<Bullone> bulloni) {
  n.nBull[gruppo] = 0;
  for (const Bullone& b : bulloni) {
    const int k = ++n.nBull[gruppo];
    n.xBull(gruppo, k) = b.x;
    n.yBull(gruppo, k) = b.y;
    n.FiBull(gruppo, k) = diametro;
  }
}

struct Asta {
  const char* nome;
  AstModo modo;
  int lato;
  double teta;  // degrees
  double ins;
};

void Aste(Sessione& s, Nodo& n, std::initializer_list<Asta> aste) {
  int i = 0;
  for (const Asta& a : aste) {
    ++i;
    n.Aste[i] = s.profili.Profili[ProfiloDaNome(s.profili, a.nome, s.piattaforma)];
    n.Ast_flag[i] = n.Ast_flag[i + 3] = 1;
    n.Ast_modo[i] = static_cast<std::int16_t>(a.modo);
    n.Ast_lato[i] = static_cast<std::int16_t>(a.lato), n.Ast_teta[i] = GradiInRadianti(a.teta);
    n.Ast_coeff[i] = 1, n.Ast_ins[i] = a.ins;
    // What the geometry sets on every run: the insertion on both edges.
    n.Saldature(i, 1).Sld_L = a.ins;
    n.Saldature(i, 2).Sld_L = a.ins;
  }
}

void Fazzoletto(Nodo& n, std::initializer_list<double> lati, double spessore) {
  double* campi[] = {&n.Fz_a, &n.Fz_b, &n.Fz_c, &n.Fz_d, &n.Fz_e, &n.Fz_f, &n.Fz_g, &n.Fz_h};
  int k = 0;
  for (double v : lati) *campi[k++] = v;
  n.Fz_s = spessore;
}

void ScegliMateriali(Sessione& s, Nodo& n, const char* acciaio, const char* vite) {
  n.acciaio = s.materiali.Acciai[AcciaioDaNome(s.materiali, acciaio, s.piattaforma)];
  n.vite = s.materiali.Viti[ViteDaNome(s.materiali, vite, s.piattaforma)];
}

struct Soll {
  double a, b, c;
  int casoII;
  const char* nome;
};

void Sollecitazioni(Nodo& n, std::initializer_list<Soll> soll) {
  n.nSollAg = 0;
  for (const Soll& x : soll) {
    const int j = ++n.nSollAg;
    n.SforzoNormale(1, j) = x.a, n.SforzoNormale(2, j) = x.b, n.SforzoNormale(3, j) = x.c;
    n.CasoCarico[j] = static_cast<std::int16_t>(x.casoII), n.NomeSa[j] = x.nome;
  }
}

Nodo Base(Sessione& s, const char* corrente) {
  NodoDefault(s);
  Nodo n = s.nodo;
  n.Corrente = s.profili.Profili[ProfiloDaNome(s.profili, corrente, s.piattaforma)];
  return n;
}

// Lower chord UPN160 with single angles and a channel, all bolted.
Nodo AngUpn(Sessione& s) {
  Nodo n = Base(s, "UPN160");
  Aste(s, n,
       {{"LU70x7", AstModo::Singola, 0, 45, 200},
        {"UPN120", AstModo::Singola, 0, 90, 120},
        {"LU60x6", AstModo::Singola, 1, 135, 120}});
  n.Lato_Sald = 6;
  Bulloni(n, 0, 20, {{100, 70}, {220, 70}, {340, 70}, {460, 70}, {580, 70}, {700, 70}});
  Bulloni(n, 1, 20, {{40, 30}, {100, 30}, {160, 30}});
  Bulloni(n, 2, 16, {{35, 26}, {85, 26}, {35, 76}, {85, 76}});
  Bulloni(n, 3, 16, {{35, 25}, {85, 25}});
  Fazzoletto(n, {150, 250, 250, 150, 100, 150, 100, 150}, 10);
  ScegliMateriali(s, n, "S 275 (FE 430)", "8.8");
  n.Esposizione = 1;
  Sollecitazioni(n, {{7100, -4900, -3100, 0, "G + neve"},
                     {4800, -3250, 2050, 1, "G + vento in pressione"},
                     {-2600, 2150, 1350, 1, "G + vento in depressione"},
                     {6550, -6000, -3750, 0, "G + neve asimmetrica"},
                     {7500, -5200, -3950, 1, "G + neve + vento"}});
  return n;
}

// Sloped top chord of double angles' truss: double and opposed web angles.
Nodo Doppio(Sessione& s) {
  Nodo n = Base(s, "LU100x10");
  n.Cor_teta = GradiInRadianti(10);
  Aste(s, n,
       {{"LU70x7", AstModo::Doppia, 0, 55, 170},
        {"LU60x6", AstModo::Opposta, 0, 90, 120},
        {"LD80x60x7", AstModo::Doppia, 1, 140, 170}});
  n.Lato_Sald = 6;
  Bulloni(n, 0, 20, {{60, 45}, {160, 45}, {260, 45}, {440, 45}, {540, 45}, {640, 45}});
  Bulloni(n, 1, 16, {{35, 30}, {85, 30}, {135, 30}});
  Bulloni(n, 2, 16, {{35, 25}, {85, 25}});
  Bulloni(n, 3, 16, {{35, 35}, {85, 35}, {135, 35}});
  Fazzoletto(n, {120, 230, 230, 120, 90, 140, 90, 140}, 12);
  ScegliMateriali(s, n, "S 235 (FE 360)", "8.8");
  n.Esposizione = 0;
  Sollecitazioni(n, {{-21500, 13200, 18400, 0, "Permanenti + neve"},
                     {-12800, 7900, 10900, 0, "Permanenti + manutenzione"},
                     {8600, -5300, -7400, 1, "Permanenti + vento in depressione"}});
  return n;
}

// HEA chord: the gusset is welded to the flange, the chord group has no bolts.
Nodo HeaSald(Sessione& s) {
  Nodo n = Base(s, "HEA200");
  Aste(s, n,
       {{"UPN140", AstModo::Singola, 0, 40, 200},
        {"LU80x8", AstModo::Singola, 0, 90, 200},
        {"UPN140", AstModo::Singola, 0, 140, 200}});
  n.Lato_Sald = 7;
  Bulloni(n, 0, 20, {});
  Bulloni(n, 1, 20, {{40, 30}, {100, 30}, {160, 30}, {40, 90}, {100, 90}, {160, 90}});
  Bulloni(n, 2, 20, {{40, 35}, {100, 35}, {160, 35}});
  Bulloni(n, 3, 20, {{40, 30}, {100, 30}, {160, 30}, {40, 90}, {100, 90}, {160, 90}});
  Fazzoletto(n, {150, 300, 300, 150, 120, 180, 120, 180}, 12);
  ScegliMateriali(s, n, "S 355 (FE 510)", "10.9");
  n.Esposizione = 2;
  Sollecitazioni(n, {{24500, -13200, -18900, 0, "Comb. 1 - G+Qn"},
                     {18300, -9900, -14100, 0, "Comb. 2 - G+Qm"},
                     {-9700, 5200, 7500, 1, "Comb. 3 - G+Qv depressione"},
                     {27600, -14800, -21300, 1, "Comb. 4 - G+Qn+Qv pressione"}});
  return n;
}

struct Azione {
  const char* sigla;
  double a, b, c;  // axial forces of members A, B, C, daN
};
struct Termine {
  const Azione* azione;
  double fattore;
};

void AggiungiCombinazione(Nodo& n, const char* stato, const std::vector<Termine>& termini) {
  const int j = ++n.nSollAg;
  std::string nome = std::string(stato) + (j < 10 ? " 0" : " ") + std::to_string(j) + " - ";
  double forza[3] = {0, 0, 0};
  bool vento = false;
  for (std::size_t t = 0; t < termini.size(); ++t) {
    const Termine& x = termini[t];
    forza[0] += x.fattore * x.azione->a;
    forza[1] += x.fattore * x.azione->b;
    forza[2] += x.fattore * x.azione->c;
    vento = vento || x.azione->sigla[1] == 'v';
    nome += (t ? "+" : "") + (x.fattore == 1.0 ? "" : TestoNumero(x.fattore)) + x.azione->sigla;
  }
  for (int i = 1; i <= 3; ++i) n.SforzoNormale(i, j) = std::round(forza[i - 1]);
  n.CasoCarico[j] = vento ? 1 : 0;
  n.NomeSa[j] = nome;
}

// Sixty combinations of the actions on a roof, as a structural model would export them: the
// ultimate limit states with unfavourable and favourable permanent loads, then the rare ones.
void CombinazioniTetto(Nodo& n) {
  static const Azione g1 = {"G1", 4300, -2300, -2800}, g2 = {"G2", 1900, -1100, -1300};
  static const Azione neve[] = {{"Qn", 7800, -4300, -5200}, {"Qna", 9100, -5300, -2100}};
  static const Azione vento[] = {{"Qv1", 2100, -900, 3000},
                                 {"Qv2", -5600, 2900, -3800},
                                 {"Qv3", 1500, -700, 1800},
                                 {"Qv4", -4200, 2300, -2900}};
  static const Azione manut = {"Qm", 900, -500, -600};
  n.nSollAg = 0;
  for (auto [gG1, gG2] : {std::pair{1.3, 1.5}, std::pair{1.0, 0.8}}) {
    const std::vector<Termine> p = {{&g1, gG1}, {&g2, gG2}};
    auto con = [&](std::vector<Termine> altri) {
      std::vector<Termine> t = p;
      t.insert(t.end(), altri.begin(), altri.end());
      AggiungiCombinazione(n, "SLU", t);
    };
    for (const Azione& qn : neve) {
      for (const Azione& qv : vento) con({{&qn, 1.5}, {&qv, 0.9}});
    }
    for (const Azione& qv : vento) {
      for (const Azione& qn : neve) con({{&qv, 1.5}, {&qn, 0.75}});
    }
    for (const Azione& qn : neve) con({{&qn, 1.5}});
    for (const Azione& qv : vento) con({{&qv, 1.5}});
    con({{&manut, 1.5}});
    con({});
  }
  const std::vector<Termine> p = {{&g1, 1}, {&g2, 1}};
  auto rara = [&](std::vector<Termine> altri) {
    std::vector<Termine> t = p;
    t.insert(t.end(), altri.begin(), altri.end());
    AggiungiCombinazione(n, "SLE", t);
  };
  for (const Azione& qn : neve) rara({{&qn, 1}});
  for (const Azione& qv : vento) rara({{&qv, 1}});
  rara({{&manut, 1}});
  rara({});
  rara({{&neve[0], 1}, {&vento[0], 0.6}});
  rara({{&neve[0], 1}, {&vento[1], 0.6}});
  rara({{&vento[0], 1}, {&neve[0], 0.5}});
  rara({{&vento[1], 1}, {&neve[0], 0.5}});
}

// A UPN chord whose loads came from the structural model: many named combinations.
Nodo MolteSoll(Sessione& s) {
  Nodo n = Base(s, "UPN200");
  Aste(s, n,
       {{"LU80x8", AstModo::Singola, 0, 50, 200},
        {"LU70x7", AstModo::Singola, 0, 90, 170},
        {"LU80x8", AstModo::Singola, 1, 130, 200}});
  n.Lato_Sald = 6;
  Bulloni(n, 0, 20, {{80, 88}, {200, 88}, {320, 88}, {480, 88}, {600, 88}, {720, 88}});
  Bulloni(n, 1, 20, {{40, 35}, {100, 35}, {160, 35}});
  Bulloni(n, 2, 16, {{35, 30}, {85, 30}, {135, 30}});
  Bulloni(n, 3, 20, {{40, 35}, {100, 35}, {160, 35}});
  Fazzoletto(n, {150, 250, 250, 150, 110, 160, 110, 160}, 12);
  ScegliMateriali(s, n, "S 275 (FE 430)", "8.8");
  n.TipoVer = static_cast<std::int16_t>(TipoVerifica::SLU);
  CombinazioniTetto(n);
  n.NumNodi = 2;
  n.NomeNodi[1] = 127;
  n.NomeNodi[2] = 128;
  return n;
}

}  // namespace

std::vector<EsempioNodo> EsempiNodo(Sessione& sessione) {
  std::vector<EsempioNodo> esempi;
  esempi.push_back({"ANGUPN.qf7", AngUpn(sessione)});
  esempi.push_back({"DOPPIO.qf7", Doppio(sessione)});
  esempi.push_back({"HEASALD.qf7", HeaSald(sessione)});
  esempi.push_back({"MOLTESOLL.qf7", MolteSoll(sessione)});
  for (auto& e : esempi) e.nodo.NomeFileNodo = e.file.substr(0, e.file.size() - 4);
  return esempi;
}

std::chrono::system_clock::time_point OraEsempi() {
  return OraLocale(2024, 5, 14, 10, 30);
}

bool CaricaLibrerieInstallazione(Sessione& sessione) {
  const auto custom = std::filesystem::path(QF17_SORGENTI) / "installazione" / "custom";
  if (!LeggiMateriali(sessione.materiali, custom / "MaterialiNTC08.tx1").errore.empty()) {
    return false;
  }
  if (!LeggiProfili(sessione.profili, custom / "Prof_pro")) return false;
  CompletaProfili(sessione.profili);
  return true;
}

std::filesystem::path CartellaEsempi() {
  return std::filesystem::path(QF17_SORGENTI) / "installazione" / "lavori" / "esempi";
}

}  // namespace qf17::prova
