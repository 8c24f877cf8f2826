#include "verifica/relazioni/testo_relazione.h"

#include <cmath>

#include "librerie/numeri.h"
#include "librerie/token.h"
#include "nodo/nodo.h"
#include "nodo/nodo_default.h"

namespace qf17 {

void TestoRelazione::Versa() {
  if (file_ == nullptr) return;
  file_->Scrivi(testo_);
  testo_.clear();
}

std::string PulisciNome(std::string_view nome) {
  std::string pulito;
  pulito.reserve(nome.size());
  for (char c : nome) {
    if (c == '\r') {
      pulito.push_back(' ');
    } else if (c != '\n') {
      pulito.push_back(c);
    }
  }
  return pulito;
}

std::string PulisciSezione(std::string_view nome) {
  std::string resto(nome);
  std::string pulito;
  for (std::string campo = ProssimoToken(resto); !campo.empty(); campo = ProssimoToken(resto)) {
    if (!pulito.empty()) pulito.push_back(' ');
    pulito += campo;
  }
  return pulito;
}

std::string ModoAsta(const Nodo& nodo, int i) {
  return ParolaModo(nodo.Ast_modo[i]);
}

// Whole numbers below 1E+15 print as their digits either way; the integer form is the quick one,
// and bolt numbers and whole-unit stresses fill most of a large report.
TestoRelazione& TestoRelazione::operator<<(Numero n) {
  const double v = n.valore;
  char breve[kCifreBrevi];
  if (const std::size_t k = CifreBrevi(v, breve); k > 0) {
    if (breve[0] != '-') testo_.push_back(' ');
    testo_.append(breve, k);
    return *this;
  }
  std::string t = v == std::trunc(v) && std::abs(v) < 1e15 ? TestoNumero(static_cast<long long>(v))
                                                           : TestoNumero(v);
  if (t.front() != '-') testo_.push_back(' ');
  testo_.append(t);
  return *this;
}

}  // namespace qf17
