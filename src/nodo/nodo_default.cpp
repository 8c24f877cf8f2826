#include "nodo/nodo_default.h"

#include "librerie/libreria_profili.h"
#include "librerie/materiali.h"
#include "nodo/sessione.h"

namespace qf17 {
namespace {

const Profilo& Sezione(Sessione& sessione, std::string_view nome) {
  return sessione.profili.Profili[ProfiloDaNome(sessione.profili, nome, sessione.piattaforma)];
}

}  // namespace

void NodoDefault(Sessione& sessione) {
  Nodo& n = sessione.nodo;
  n.TipoVer = static_cast<std::int16_t>(TipoVerifica::TA);

  n.Corrente = Sezione(sessione, "IPE140");
  n.Aste[1] = Sezione(sessione, "LU60x6");
  n.Aste[2] = Sezione(sessione, "UPN120");
  n.Aste[3] = Sezione(sessione, "LU60x6");

  for (int i = 1; i <= kMaxAste; ++i) {
    n.Ast_flag[i] = 1;
    n.Ast_flag[i + 3] = n.Ast_flag[i];
    n.Ast_modo[i] = static_cast<std::int16_t>(AstModo::Singola);
    n.Ast_coeff[i] = 1.0;
    n.Ast_ins[i] = 150;
  }
  // Member B has no side of its own in a new node: it keeps 0.
  n.Ast_lato[1] = 0;
  n.Ast_lato[2] = 0;
  n.Ast_lato[3] = 1;
  n.Ast_teta[1] = GradiInRadianti(45);
  n.Ast_teta[2] = GradiInRadianti(90);
  n.Ast_teta[3] = GradiInRadianti(135);

  n.Fz_s = 15;
  n.Lato_Sald = 10;
  n.Fz_a = 150;
  n.Fz_b = 250;
  n.Fz_c = 250;
  n.Fz_d = 150;
  n.Fz_e = 100;
  n.Fz_f = 150;
  n.Fz_g = 100;
  n.Fz_h = 150;
  // The side of the gusset is the geometry's result; until it runs there is none.
  n.PosFazzoletto = 0;

  MaterialiDefault(sessione);
  n.Esposizione = 0;

  n.nSollAg = 0;
  for (int g = 0; g <= 3; ++g) n.nBull[g] = 0;
  n.NumNodi = 0;
  n.DisegnoGenerato = false;
  n.Cor_tetaCasella = n.Cor_teta;
}

std::string ParolaModo(int astModo) {
  switch (astModo) {
    case static_cast<int>(AstModo::Doppia):
      return "DOPPIA";
    case static_cast<int>(AstModo::Opposta):
      return "OPPOSTA";
    default:
      return "SINGOLA";
  }
}

std::string LetteraAsta(int asta) {
  switch (asta) {
    case 1:
      return "A";
    case 2:
      return "B";
    case 3:
      return "C";
    default:
      return "";
  }
}

}  // namespace qf17
