#include <algorithm>
#include <string>

#include "librerie/numeri.h"
#include "librerie/unita.h"
#include "nodo/nodo.h"
#include "nodo/panel/ins_dati.h"
#include "piattaforma/piattaforma.h"
#include "verifica/operazioni_soll.h"

namespace qf17 {
namespace {

constexpr int kRigheSoll = 4;
// The add button stops one short of the table: an import may still fill the last set.
constexpr int kMassimoAggiunte = kMaxSollecitazioni - 1;

// The set on row `riga`: what its number label shows.
int SetDellaRiga(const InsDati& p, int riga) {
  const Controllo* etichetta = p.c.Trova("Lb_sol_num", riga);
  return etichetta == nullptr ? 0 : static_cast<int>(NumeroIniziale(etichetta->testo));
}

void RigaSoll(InsDati& p, const Nodo& n, const UnitaLavoro& u, int riga, int j) {
  const bool esiste = j <= n.nSollAg;
  p.c("Lb_sol_num", riga).visibile = esiste;
  p.c("Tb_sol_descr", riga).visibile = esiste;
  const char* carichi[] = {"Txt1", "Txt2", "Txt3"};
  for (int i = 1; i <= kMaxAste; ++i) {
    Controllo& box = p.c(carichi[i - 1], riga);
    box.visibile = esiste;
    box.abilitato = esiste && n.Ast_flag[i] == 1;
    if (esiste) box.testo = TestoNumero(n.SforzoNormale(i, j) * u.FatForze);
  }
  Controllo& caso = p.c("CasCar", riga);
  caso.visibile = esiste && n.TipoVer == 0;
  if (!esiste) return;
  p.c("Lb_sol_num", riga).testo = std::to_string(j);
  p.c("Tb_sol_descr", riga).testo = n.NomeSa[j];
  caso.valore = n.CasoCarico[j] == 1 ? 1 : 0;
}

}  // namespace

void pnn1_aggiorna_sollecitazioni(InsDati& p, Nodo& n, const UnitaLavoro& u, int prima) {
  p.Aggiornamento = 1;
  if (prima != -1) p.primaSoll = prima;
  const int ultimaPrima = std::max(1, n.nSollAg - (kRigheSoll - 1));
  p.primaSoll = std::clamp(p.primaSoll, 1, ultimaPrima);
  for (int riga = 0; riga < kRigheSoll; ++riga) RigaSoll(p, n, u, riga, p.primaSoll + riga);
  Controllo& barra = p.c("VScrollSoll");
  barra.minimo = 1;
  barra.massimo = ultimaPrima;
  barra.valore = p.primaSoll;
  barra.abilitato = n.nSollAg > kRigheSoll;
  p.c("Lb_CasCar").visibile = n.TipoVer == 0;
  p.c("Lb_nrosol").testo = std::to_string(n.nSollAg);
  for (const char* pulsante :
       {"RimuoviUltSoll", "RimuoviTutteSoll", "RimuoviDoppieSoll", "MaxMinSoll"}) {
    p.c(pulsante).abilitato = n.nSollAg >= 1;
  }
  p.Aggiornamento = 0;
}

void Bt_agg_sing_sol(InsDati& p, Nodo& n, const UnitaLavoro& u, Piattaforma& piattaforma) {
  if (p.Aggiornamento == 1) return;
  if (n.nSollAg >= kMassimoAggiunte) {
    piattaforma.Messaggio("E' stato raggiunto il numero massimo di sollecitazioni.", "ERRORE",
                          Icona::Critica, Pulsanti::Ok);
    return;
  }
  const int j = ++n.nSollAg;
  for (int i = 1; i <= kMaxAste; ++i) n.SforzoNormale(i, j) = 0;
  n.NomeSa[j] = "Soll " + std::to_string(j);
  n.CasoCarico[j] = 0;
  pnn1_aggiorna_sollecitazioni(p, n, u, j);
}

void RimuoviUltSoll(InsDati& p, Nodo& n, const UnitaLavoro& u) {
  if (p.Aggiornamento == 1 || n.nSollAg <= 0) return;
  --n.nSollAg;
  pnn1_aggiorna_sollecitazioni(p, n, u, -1);
}

void RimuoviTutteSoll(InsDati& p, Nodo& n, const UnitaLavoro& u, Piattaforma& piattaforma) {
  if (p.Aggiornamento == 1) return;
  if (piattaforma.Messaggio("Rimozione totale dei dati relativi alle sollecitazioni agenti?",
                            "ATTENZIONE!", Icona::Attenzione,
                            Pulsanti::OkAnnulla) != Risposta::Ok) {
    return;
  }
  n.nSollAg = 0;
  pnn1_aggiorna_sollecitazioni(p, n, u, 1);
}

void Lb_sol_num_Click(InsDati& p, Nodo& n, const UnitaLavoro& u, int riga) {
  if (p.Aggiornamento == 1) return;
  const int j = SetDellaRiga(p, riga);
  if (j < 1 || j > n.nSollAg) return;
  RimuoviSoll(n, j);
  pnn1_aggiorna_sollecitazioni(p, n, u, -1);
}

void CasCar_Click(InsDati& p, Nodo& n, int riga, bool spuntata) {
  if (p.Aggiornamento == 1) return;
  const int j = SetDellaRiga(p, riga);
  if (j >= 1) n.CasoCarico[j] = spuntata ? 1 : 0;
}

void VScrollSoll_Change(InsDati& p, Nodo& n, const UnitaLavoro& u, int valore) {
  pnn1_aggiorna_sollecitazioni(p, n, u, valore);
}

}  // namespace qf17
