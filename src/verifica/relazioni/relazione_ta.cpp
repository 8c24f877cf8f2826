#include "verifica/relazioni/relazione_ta.h"

#include "librerie/token.h"
#include "nodo/sessione.h"
#include "piattaforma/file_sicuro.h"
#include "verifica/relazioni/relazione_comune.h"
#include "verifica/relazioni/relazione_ta_parti.h"

namespace qf17 {

std::filesystem::path NomeRelazione(const Nodo& nodo, std::string_view tag,
                                    std::string_view codice) {
  std::string nome = "Rel";
  nome.append(tag).append("_").append(codice).append("_");
  nome += Rifila(nodo.NomeFileNodo);
  nome += ".txt";
  return std::filesystem::path(nodo.DirLavoro) / nome;
}

bool RelazioneTA(Sessione& sessione, VerdettiRelazione& verdetti) {
  const Nodo& n = sessione.nodo;
  int nSet = n.nSollAg > 0 ? n.nSollAg : 0;
  PreparaVerdetti(verdetti, nSet);

  FileSicuro file(NomeRelazione(n, "TA"));
  TestoRelazione r(file);
  ScriviTestataTA(sessione, r);
  for (int j = 1; j <= nSet; ++j) {
    verdetti.SetOk[j] = ScriviSetTA(sessione, j, r, verdetti);
    if (!verdetti.SetOk[j]) verdetti.NodoKo = true;
  }
  return ConcludiRelazione(sessione, file, r, verdetti.NodoKo);
}

}  // namespace qf17
