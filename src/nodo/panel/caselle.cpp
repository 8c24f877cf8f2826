#include <array>
#include <cmath>
#include <string>

#include "librerie/formatta.h"
#include "librerie/numeri.h"
#include "librerie/token.h"
#include "librerie/unita.h"
#include "nodo/nodo.h"
#include "nodo/panel/ins_dati.h"
#include "verifica/relazioni/relazione_comune.h"

namespace qf17 {
namespace {

constexpr std::array<std::string_view, 9> kNomiCaselle = {
    "BeffTxt", "FzTxt", "SpessTxt", "TextSald", "TetaTxt", "Txt1", "Txt2", "Txt3", "Tb_sol_descr"};

bool Carico(FamigliaCasella f) {
  return f == FamigliaCasella::Txt1 || f == FamigliaCasella::Txt2 || f == FamigliaCasella::Txt3;
}

int Membro(FamigliaCasella f) {
  return static_cast<int>(f) - static_cast<int>(FamigliaCasella::Txt1) + 1;
}

// The load set on row `riga` of the table: the number its label shows.
int SetDellaRiga(const InsDati& p, int riga) {
  const Controllo* etichetta = p.c.Trova("Lb_sol_num", riga);
  return etichetta == nullptr ? 0 : static_cast<int>(NumeroIniziale(etichetta->testo));
}

// The field of a length, angle or coefficient box; null for the load boxes. For a node and a
// read-only node alike.
template <class N>
auto Campo(N& n, Casella c) -> decltype(&n.Fz_a) {
  switch (c.famiglia) {
    case FamigliaCasella::BeffTxt:
      return &n.Ast_coeff[c.indice];
    case FamigliaCasella::FzTxt: {
      if (c.indice >= 8) return &n.Ast_ins[c.indice - 7];
      decltype(&n.Fz_a) fz[] = {&n.Fz_a, &n.Fz_b, &n.Fz_c, &n.Fz_d,
                                &n.Fz_e, &n.Fz_f, &n.Fz_g, &n.Fz_h};
      return fz[c.indice];
    }
    case FamigliaCasella::SpessTxt:
      return &n.Fz_s;
    case FamigliaCasella::TextSald:
      return &n.Lato_Sald;
    case FamigliaCasella::TetaTxt:
      return c.indice == 0 ? &n.Cor_teta : &n.Ast_teta[c.indice];
    case FamigliaCasella::Txt1:
    case FamigliaCasella::Txt2:
    case FamigliaCasella::Txt3:
    case FamigliaCasella::Tb_sol_descr:
      return nullptr;
  }
  return nullptr;
}

std::string TestoAngolo(double radianti, Piattaforma& piattaforma) {
  double scala = 1;
  return Formatta(RadiantiInGradi(radianti), "(DV_02)(NP_1)", scala, piattaforma);
}

}  // namespace

std::string_view NomeCasella(FamigliaCasella f) {
  return kNomiCaselle[static_cast<std::size_t>(f)];
}

void TbValuta(InsDati& p, Nodo& n, const UnitaLavoro& u, Casella c) {
  if (p.Aggiornamento == 1) return;
  const std::string& testo = p.c(NomeCasella(c.famiglia), c.indice).testo;
  if (c.famiglia == FamigliaCasella::Tb_sol_descr) {
    const int j = SetDellaRiga(p, c.indice);
    if (j >= 1) n.NomeSa[j] = testo;
    return;
  }
  const double v = NumeroIniziale(testo);
  if (Carico(c.famiglia)) {
    const int j = SetDellaRiga(p, c.indice);
    if (j < 1) return;
    double& forza = n.SforzoNormale(Membro(c.famiglia), j);
    if (std::abs(forza - v) < 0.0001) return;
    forza = v / u.FatForze;
    return;
  }
  double* campo = Campo(n, c);
  *campo = c.famiglia == FamigliaCasella::TetaTxt ? GradiInRadianti(v) : v;
  // The chord's angle as entered, which the reports print whatever the geometry makes of it.
  if (c.famiglia == FamigliaCasella::TetaTxt && c.indice == 0) n.Cor_tetaCasella = n.Cor_teta;
  if (c.famiglia == FamigliaCasella::BeffTxt) return;
  p.cambiato = true;
  if (n.Vista3DAttiva == 1 && p.ricostruisci3D) p.ricostruisci3D();
}

void TbRipristina(InsDati& p, const Nodo& n, const UnitaLavoro& u, Piattaforma& piattaforma,
                  Casella c) {
  Controllo& box = p.c(NomeCasella(c.famiglia), c.indice);
  if (c.famiglia == FamigliaCasella::Tb_sol_descr || Carico(c.famiglia)) {
    const int j = SetDellaRiga(p, c.indice);
    if (j < 1) return;
    box.testo = c.famiglia == FamigliaCasella::Tb_sol_descr
                    ? n.NomeSa[j]
                    : TestoNumero(n.SforzoNormale(Membro(c.famiglia), j) * u.FatForze);
    return;
  }
  const bool corrente = c.famiglia == FamigliaCasella::TetaTxt && c.indice == 0;
  const double valore = corrente ? AngoloCasellaCorrente(n) : *Campo(n, c);
  box.testo = c.famiglia == FamigliaCasella::TetaTxt ? TestoAngolo(valore, piattaforma)
                                                     : TestoNumero(valore);
}

void pnn1_aggiorna_textbox(InsDati& p, const Nodo& n, const UnitaLavoro& u,
                           Piattaforma& piattaforma) {
  for (int i = 0; i <= 10; ++i) TbRipristina(p, n, u, piattaforma, {FamigliaCasella::FzTxt, i});
  TbRipristina(p, n, u, piattaforma, {FamigliaCasella::SpessTxt});
  TbRipristina(p, n, u, piattaforma, {FamigliaCasella::TextSald});
  for (int i = 0; i <= kMaxAste; ++i)
    TbRipristina(p, n, u, piattaforma, {FamigliaCasella::TetaTxt, i});
  for (int i = 1; i <= kMaxAste; ++i)
    TbRipristina(p, n, u, piattaforma, {FamigliaCasella::BeffTxt, i});
}

std::string Numero3Cifre(double valore) {
  std::string testo = Rifila(TestoNumero(valore));
  if (testo.size() <= 3) return testo;
  double intero = std::floor(valore + 0.5);
  testo = TestoNumero(intero);
  if (testo.size() <= 3) return testo;
  const double potenza = std::pow(10.0, static_cast<double>(testo.size() - 3));
  return TestoNumero(std::floor(intero / potenza) * potenza);
}

void pnn2_ScriviDatiProfilo(InsDati& p, const Nodo& n, int asta) {
  const Profilo& s = asta == 0 ? n.Corrente : n.Aste[asta];
  const double doppio = asta > 0 && n.Ast_modo[asta] != 0 ? 2 : 1;
  const double resistenza = n.TipoVer == 1 ? n.acciaio.fy : n.acciaio.SAmm;
  const int primo = 6 * asta;
  const double dati[] = {s.h, s.b, s.a, s.e};
  for (int k = 0; k < 4; ++k) p.c("geomp", primo + k).testo = TestoNumero(dati[k]);
  p.c("geomp", primo + 4).testo = Numero3Cifre(s.Area / 100 * doppio);
  p.c("geomp", primo + 5).testo = Numero3Cifre(s.Area * resistenza / 10 * doppio);
}

}  // namespace qf17
