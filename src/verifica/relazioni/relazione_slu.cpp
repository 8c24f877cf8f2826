#include "verifica/relazioni/relazione_slu.h"

#include "nodo/sessione.h"
#include "piattaforma/file_sicuro.h"
#include "verifica/relazioni/relazione_comune.h"
#include "verifica/relazioni/relazione_slu_parti.h"
#include "verifica/relazioni/relazione_ta.h"

namespace qf17 {

bool RelazioneSLU(Sessione& sessione, VerdettiRelazione& verdetti) {
  const Nodo& n = sessione.nodo;
  int nSet = n.nSollAg > 0 ? n.nSollAg : 0;
  PreparaVerdetti(verdetti, nSet);

  FileSicuro file(NomeRelazione(n, "SLU"));
  TestoRelazione r(file);
  ScriviTestataSLU(sessione, r);
  for (int j = 1; j <= nSet; ++j) {
    verdetti.SetOk[j] = ScriviSetSLU(sessione, j, r, verdetti);
    if (!verdetti.SetOk[j]) verdetti.NodoKo = true;
  }
  return ConcludiRelazione(sessione, file, r, verdetti.NodoKo);
}

}  // namespace qf17
