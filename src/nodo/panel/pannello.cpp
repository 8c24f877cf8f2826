#include "nodo/panel/pannello.h"

#include <string>

#include "librerie/numeri.h"
#include "nodo/avvio.h"
#include "nodo/file_nodo.h"
#include "nodo/panel/ins_dati.h"
#include "nodo/panel/profili_pannello.h"
#include "nodo/panel/schizzi.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"
#include "verifica/operazioni_soll.h"

namespace qf17 {

const std::array<ToolTipPannello, 63> kToolTipPannello = {{
    {"Car_Nodo", -1, "Caricamento di un nodo salvato in precedenza"},
    {"Bt_salva", -1, "Salvataggio del nodo nella cartella del lavoro"},
    {"Bt_salva_con_nome", -1, "Salvataggio del nodo con un nuovo nome"},
    {"Gen_Dis", -1, "Generazione del disegno esecutivo del nodo"},
    {"ApriVis", -1, "Visualizzazione del disegno esecutivo del nodo"},
    {"bt_vista3d", -1, "Visualizzazione tridimensionale del nodo"},
    {"Opz", -1, "Opzioni del disegno esecutivo"},
    {"VerificaButt", -1, "Verifica del nodo e scrittura della relazione di calcolo"},
    {"LegendaButt", -1, "Legenda della relazione di calcolo"},
    {"Imp_nodi3D_c", -1, "Importazione di un nodo dal modello tridimensionale"},
    {"ImpS3D", -1, "Importazione delle sollecitazioni dal modello tridimensionale"},
    {"CheckMaxMin", -1, "Importare solo le sollecitazioni con un massimo o un minimo"},
    {"PropMatButton", -1, "Proprietà dei materiali del lavoro"},
    {"Chiudi", -1, "Uscita dal programma"},
    {"Bt_agg_sing_sol", -1, "Aggiunta di una sollecitazione"},
    {"RimuoviUltSoll", -1, "Rimozione dell'ultima sollecitazione"},
    {"RimuoviTutteSoll", -1, "Rimozione di tutte le sollecitazioni"},
    {"RimuoviDoppieSoll", -1, "Rimozione delle sollecitazioni ripetute"},
    {"MaxMinSoll", -1, "Conservare solo le sollecitazioni con un massimo o un minimo"},
    {"Bt_bul_corr", -1, "Inserimento dei bulloni sul corrente"},
    {"Bt_bul_asta_A", -1, "Inserimento dei bulloni sull'asta A"},
    {"Bt_bul_asta_B", -1, "Inserimento dei bulloni sull'asta B"},
    {"Bt_bul_asta_C", -1, "Inserimento dei bulloni sull'asta C"},
    {"Cb_Asta", 0, "Scegliere la sezione del corrente"},
    {"Cb_Asta", 1, "Scegliere la sezione dell'asta A"},
    {"Cb_Asta", 2, "Scegliere la sezione dell'asta B"},
    {"Cb_Asta", 3, "Scegliere la sezione dell'asta C"},
    {"AstaCh", 1, "Presenza dell'asta A nel nodo"},
    {"AstaCh", 2, "Presenza dell'asta B nel nodo"},
    {"AstaCh", 3, "Presenza dell'asta C nel nodo"},
    {"OpB_aste_c", 0, "Asta A con un profilo singolo"},
    {"OpB_aste_c", 1, "Asta A con due profili accoppiati ai lati del fazzoletto"},
    {"OpB_aste_c", 2, "Asta A con due angolari opposti ai lati del fazzoletto"},
    {"OpB_aste_c", 3, "Asta B con un profilo singolo"},
    {"OpB_aste_c", 4, "Asta B con due profili accoppiati ai lati del fazzoletto"},
    {"OpB_aste_c", 5, "Asta B con due angolari opposti ai lati del fazzoletto"},
    {"OpB_aste_c", 6, "Asta C con un profilo singolo"},
    {"OpB_aste_c", 7, "Asta C con due profili accoppiati ai lati del fazzoletto"},
    {"OpB_aste_c", 8, "Asta C con due angolari opposti ai lati del fazzoletto"},
    {"L", -1, "Cliccare per ribaltare la sezione"},
    {"L2", -1, "Cliccare per ribaltare la sezione"},
    {"L4", -1, "Cliccare per ribaltare la sezione"},
    {"FzTxt", 0, "Inserire la dimensione a del fazzoletto [mm]"},
    {"FzTxt", 1, "Inserire la dimensione b del fazzoletto [mm]"},
    {"FzTxt", 2, "Inserire la dimensione c del fazzoletto [mm]"},
    {"FzTxt", 3, "Inserire la dimensione d del fazzoletto [mm]"},
    {"FzTxt", 4, "Inserire la dimensione e del fazzoletto [mm]"},
    {"FzTxt", 5, "Inserire la dimensione f del fazzoletto [mm]"},
    {"FzTxt", 6, "Inserire la dimensione g del fazzoletto [mm]"},
    {"FzTxt", 7, "Inserire la dimensione h del fazzoletto [mm]"},
    {"FzTxt", 8, "Inserire la lunghezza di profilo nel fazzoletto [mm]"},
    {"FzTxt", 9, "Inserire la lunghezza di profilo nel fazzoletto [mm]"},
    {"FzTxt", 10, "Inserire la lunghezza di profilo nel fazzoletto [mm]"},
    {"SpessTxt", -1, "Inserire lo spessore del fazzoletto [mm]"},
    {"TextSald", -1, "Inserire il lato della saldatura fra fazzoletto e corrente [mm]"},
    {"TetaTxt", 0, "Inserire l'angolo di inclinazione del corrente in gradi (positivo se orario)"},
    {"TetaTxt", 1, "Inserire l'angolo di inclinazione dell'asta A in gradi (positivo se orario)"},
    {"TetaTxt", 2, "Inserire l'angolo di inclinazione dell'asta B in gradi (positivo se orario)"},
    {"TetaTxt", 3, "Inserire l'angolo di inclinazione dell'asta C in gradi (positivo se orario)"},
    {"BeffTxt", 1, "Inserire il coefficiente della larghezza efficace dell'asta A"},
    {"BeffTxt", 2, "Inserire il coefficiente della larghezza efficace dell'asta B"},
    {"BeffTxt", 3, "Inserire il coefficiente della larghezza efficace dell'asta C"},
    {"VScrollSoll", -1, "Scorrere le sollecitazioni agenti"},
}};

namespace {

// The length the bolt group lies along: the gusset's for the chord, the member's insertion.
double LunghezzaGruppo(const Nodo& n, std::int16_t gruppo) {
  return gruppo == 1 ? n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d : n.Ast_ins[gruppo - 1];
}

std::optional<FormBulloni> ApriEditor(InsDati& p, Sessione& s, std::int16_t gruppo,
                                      DimensioniPicture picture) {
  p.GruppoEditor = gruppo;
  return ApriFormBulloni(s.nodo, s.opzioni, s.piattaforma, gruppo, CaselleDalNodo(s.nodo),
                         picture.larghezza, picture.altezza);
}

void AggiornaTitolo(InsDati& p, const Sessione& s) {
  p.c("InsDati").testo = ImpostaTitolo(s.nodo.DirLavoro, s.nodo.NomeFileNodo);
}

}  // namespace

void InsDati_ImpostaToolTip(InsDati& p) {
  for (const ToolTipPannello& t : kToolTipPannello) {
    p.c(t.controllo, t.indice).tooltip = std::string(t.testo);
  }
}

void AggiornaPannello(InsDati& p, Sessione& s) {
  InsDati_ImpostaToolTip(p);
  pnn1_aggiorna_profili(p, s);
  pnn1_aggiorna_textbox(p, s.nodo, s.unita, s.piattaforma);
  pnn1_aggiorna_materiali(p, s);
  p.c("TipoVer", 0).valore = s.nodo.TipoVer == 0 ? 1 : 0;
  p.c("TipoVer", 1).valore = s.nodo.TipoVer == 1 ? 1 : 0;
  pnn1_aggiorna_sollecitazioni(p, s.nodo, s.unita, 1);
  p.c("Sezioni").disegno = Schema().disegno;
  AggiornaTitolo(p, s);
}

void Sezioni_MouseMove(InsDati& p, const Nodo& n, double x, double y) {
  p.GruppoEditor = 0;
  const auto& aree = Schema().aree;
  for (int g = 1; g <= 4; ++g) {
    if (g == 1 && n.Corrente.Tipo == 2) continue;
    if (PuntoInterno(x, y, aree[static_cast<std::size_t>(g - 1)])) {
      p.GruppoEditor = static_cast<std::int16_t>(g);
      break;
    }
  }
  p.manina = p.GruppoEditor != 0;
}

std::optional<FormBulloni> Sezioni_Click(InsDati& p, Sessione& s, DimensioniPicture picture) {
  const std::int16_t g = p.GruppoEditor;
  if (g == 0) return std::nullopt;
  if (LunghezzaGruppo(s.nodo, g) <= 0.0001) {
    s.piattaforma.Messaggio("Dimensione non valida", "ATTENZIONE", Icona::Informazione,
                            Pulsanti::Ok);
    return std::nullopt;
  }
  return ApriEditor(p, s, g, picture);
}

std::optional<FormBulloni> Bt_bul_Click(InsDati& p, Sessione& s, std::int16_t gruppo,
                                        DimensioniPicture picture) {
  return ApriEditor(p, s, gruppo, picture);
}

void FormBulloniChiusa(InsDati& p, Sessione& s) {
  if (s.nodo.Vista3DAttiva == 1 && p.ricostruisci3D) p.ricostruisci3D();
}

EsitoVerifica VerificaButt(InsDati& /*p*/, Sessione& s) {
  RaccoltaMessaggi raccolta(s.piattaforma);
  AvvisoBulloniMancanti(s);
  return EseguiVerifica(s);
}

bool Car_Nodo(InsDati& p, Sessione& s) {
  if (!ApriNodo(s)) return false;
  AggiornaPannello(p, s);
  if (s.nodo.Vista3DAttiva == 1 && p.ricostruisci3D) p.ricostruisci3D();
  return true;
}

bool Bt_salva(InsDati& p, Sessione& s) {
  if (!SalvaNodo(s)) return false;
  AggiornaTitolo(p, s);
  return true;
}

bool Bt_salva_con_nome(InsDati& p, Sessione& s) {
  if (!SalvaNodoCome(s)) return false;
  AggiornaTitolo(p, s);
  return true;
}

void RimuoviDoppieSoll(InsDati& p, Sessione& s) {
  if (p.Aggiornamento == 1) return;
  RimuoviDoppie(s.nodo);
  pnn1_aggiorna_sollecitazioni(p, s.nodo, s.unita, 1);
}

void MaxMinSoll(InsDati& p, Sessione& s) {
  if (p.Aggiornamento == 1) return;
  RiduciMaxMin(s.nodo);
  pnn1_aggiorna_sollecitazioni(p, s.nodo, s.unita, 1);
}

void LegendaButt(Sessione& s) {
  const std::string guida = (Percorso(s.cartelle.Help) / "HelpQF17.pdf").string();
  if (!s.piattaforma.Mostra(Vista::Guida, guida)) {
    s.piattaforma.Messaggio("Errore: impossibile aprire " + guida, "ERRORE", Icona::Critica,
                            Pulsanti::Ok);
  }
}

}  // namespace qf17
