#include "nodo/panel/profili_pannello.h"

#include <string>

#include "librerie/libreria_profili.h"
#include "librerie/materiali.h"
#include "nodo/panel/ins_dati.h"
#include "nodo/panel/schizzi.h"
#include "nodo/sessione.h"

namespace qf17 {
namespace {

const char* const kEsposizioni[] = {"Esposto a fenomeni corrosivi",
                                    "Non esposto a fenomeni corrosivi",
                                    "Resistente alla corrosione"};

std::string Lettera(int m) {
  return std::string(1, static_cast<char>('A' + m - 1));
}

void Ricostruisci3D(InsDati& p, const Nodo& n) {
  if (n.Vista3DAttiva == 1 && p.ricostruisci3D) p.ricostruisci3D();
}

// The lists of the combos: every section for the chord, channels and angles for the members.
void Liste(InsDati& p, const LibreriaProfili& libreria) {
  if (p.numeroProfiliListe == libreria.NumProfiliTot) return;
  p.numeroProfiliListe = libreria.NumProfiliTot;
  p.listaCorrente = ListaCorrente(libreria);
  p.listaAste = ListaAste(libreria);
  auto nomi = [&libreria](const std::vector<std::int16_t>& lista) {
    std::vector<std::string> v;
    v.reserve(lista.size());
    for (std::int16_t riga : lista) v.push_back(libreria.Profili[riga].Nome);
    return v;
  };
  p.c("Cb_Asta", 0).voci = nomi(p.listaCorrente);
  const auto aste = nomi(p.listaAste);
  for (int i = 1; i <= kMaxAste; ++i) p.c("Cb_Asta", i).voci = aste;
}

}  // namespace

void pnn1_aggiorna_profili(InsDati& p, Sessione& s, std::array<bool, 4> giaValide) {
  Nodo& n = s.nodo;
  p.Aggiornamento = 1;
  Liste(p, s.profili);
  for (int i = 0; i <= kMaxAste; ++i) {
    if (!giaValide[static_cast<std::size_t>(i)]) {
      const Profilo& sezione = i == 0 ? n.Corrente : n.Aste[i];
      p.c("Cb_Asta", i).selezione = ProfiloInLista(
          s.profili, sezione.Nome, i == 0 ? p.listaCorrente : p.listaAste, s.piattaforma);
    }
    pnn2_ScriviDatiProfilo(p, n, i);
    pnn2_disegna_label_sezione_aste(p, i);
    if (i > 0) pnn2_aggionaOpButton_Disegni(p, s, i);
  }
  p.c("Pic", 0).disegno = SchizzoSezione(n, 0);
  for (int i = 1; i <= kMaxAste; ++i) {
    const bool presente = n.Ast_flag[i] == 1;
    p.c("AstaCh", i).valore = presente ? 1 : 0;
    p.c("AstaCh", i).testo = "ASTA " + Lettera(i);
    for (auto [nome, indice] : {std::pair{"Pic", i}, std::pair{"FzTxt", 7 + i}}) {
      p.c(nome, indice).abilitato = presente;
    }
    p.c("Bt_bul_asta_" + Lettera(i)).abilitato = presente;
    // Only an angle turns over: the side label of any other member does nothing.
    const char* const lati[] = {"", "L", "L2", "L4"};
    p.c(lati[i]).abilitato = presente && n.Aste[i].Tipo == 1;
  }
  p.c("Bt_bul_corr").abilitato = n.Corrente.Tipo != 2;
  p.Aggiornamento = 0;
}

void pnn1_aggiorna_materiali(InsDati& p, Sessione& s) {
  const Nodo& n = s.nodo;
  const Materiali& m = s.materiali;
  p.c("Cb_Acciaio").voci = m.ListaAcciai;
  p.c("Cb_Acciaio").selezione = m.ListaAcciaiScelta;
  p.c("Cb_Vite").voci = ListaViti(m);
  p.c("Cb_Vite").selezione = ViteDaNome(m, n.vite.Nome, s.piattaforma) - 1;
  p.c("LabNorma").testo = n.acciaio.Norma;
  Controllo& esposizione = p.c("ComboEsposizione");
  esposizione.voci.assign(std::begin(kEsposizioni), std::end(kEsposizioni));
  esposizione.selezione = n.Esposizione;
}

void pnn2_aggionaOpButton_Disegni(InsDati& p, const Sessione& s, int m) {
  const Nodo& n = s.nodo;
  for (int scelta = 0; scelta < 3; ++scelta) {
    p.c("OpB_aste_c", 3 * (m - 1) + scelta).valore = n.Ast_modo[m] == scelta ? 1 : 0;
  }
  p.c("Pic", m).disegno = SchizzoSezione(n, m);
}

void pnn2_disegna_label_sezione_aste(InsDati& p, int m) {
  // The last two cells: the area in cm2 and the largest axial force, area x strength / 10,
  // which is newtons.
  const char* const etichette[] = {"h:", "b:", "a:", "e:", "A [cm2]:", "N [N]:"};
  for (int k = 0; k < 6; ++k) p.c("geom", 6 * m + k).testo = etichette[k];
}

void Cb_Asta_Click(InsDati& p, Sessione& s, int i, int posto) {
  Nodo& n = s.nodo;
  const auto& lista = i == 0 ? p.listaCorrente : p.listaAste;
  if (p.Aggiornamento == 1 || posto < 0 || posto >= static_cast<int>(lista.size())) return;
  const Profilo& riga = s.profili.Profili[lista[static_cast<std::size_t>(posto)]];
  (i == 0 ? n.Corrente : n.Aste[i]) = riga;
  p.c("Cb_Asta", i).selezione = posto;
  std::array<bool, 4> giaValide{};
  giaValide[static_cast<std::size_t>(i)] = true;
  pnn1_aggiorna_profili(p, s, giaValide);
  Ricostruisci3D(p, n);
}

void AstaCh_Click(InsDati& p, Sessione& s, int i, bool spuntata) {
  Nodo& n = s.nodo;
  if (p.Aggiornamento == 1) return;
  n.Ast_flag[i] = n.Ast_flag[i + 3] = spuntata ? 1 : 0;
  pnn1_aggiorna_profili(p, s);
  pnn1_aggiorna_sollecitazioni(p, n, s.unita, -1);
  Ricostruisci3D(p, n);
}

void OpB_aste_c_Click(InsDati& p, Sessione& s, int k) {
  Nodo& n = s.nodo;
  if (p.Aggiornamento == 1) return;
  const int m = k / 3 + 1;
  switch (k % 3) {
    case 0:
      n.Ast_modo[m] = 0;
      break;
    case 1:
      n.Ast_modo[m] = 1;
      break;
    default:
      // Only angles can be opposed: a channel stays single, with its side set all the same.
      n.Ast_modo[m] = n.Aste[m].Tipo == 1 ? 2 : 0;
      n.Ast_lato[m] = 1;
      break;
  }
  pnn2_aggionaOpButton_Disegni(p, s, m);
  pnn2_ScriviDatiProfilo(p, n, m);
  Ricostruisci3D(p, n);
}

void Cambia_lato_asta_L(InsDati& p, Sessione& s, int indice) {
  Nodo& n = s.nodo;
  const int m = indice + 1;
  if (p.Aggiornamento == 1 || n.Aste[m].Tipo != 1) return;
  n.Ast_lato[m] = n.Ast_lato[m] == 1 ? 0 : 1;
  pnn2_aggionaOpButton_Disegni(p, s, m);
  Ricostruisci3D(p, n);
}

void TipoVer_Click(InsDati& p, Sessione& s, std::int16_t metodo) {
  if (p.Aggiornamento == 1) return;
  CambiaMetodo(s, metodo);
  p.c("TipoVer", 0).valore = metodo == 0 ? 1 : 0;
  p.c("TipoVer", 1).valore = metodo == 1 ? 1 : 0;
  pnn1_aggiorna_materiali(p, s);
  pnn1_aggiorna_sollecitazioni(p, s.nodo, s.unita, -1);
  for (int i = 0; i <= kMaxAste; ++i) pnn2_ScriviDatiProfilo(p, s.nodo, i);
}

void ComboEsposizione_Click(InsDati& p, Sessione& s, int posto) {
  if (p.Aggiornamento == 1 || posto < 0 || posto > 2) return;
  s.nodo.Esposizione = static_cast<std::int16_t>(posto);
  p.c("ComboEsposizione").selezione = posto;
}

void Cb_Acciaio_Click(InsDati& p, Sessione& s, int posto) {
  if (p.Aggiornamento == 1) return;
  SceltaAcciaio(s, posto);
  pnn1_aggiorna_materiali(p, s);
}

void Cb_Vite_Click(InsDati& p, Sessione& s, int posto) {
  if (p.Aggiornamento == 1) return;
  SceltaVite(s, posto);
  pnn1_aggiorna_materiali(p, s);
}

}  // namespace qf17
