#include "librerie/materiali.h"
#include "nodo/nodo.h"
#include "nodo/sessione.h"

// The strengths of the materials form, derived from the node's steel and bolt class.
namespace qf17 {
namespace {

// Load case II raises every allowable stress by this fixed factor.
constexpr double kCasoII = 1.125;

double Quoziente(double valore, double fattore) {
  return fattore == 0 ? 0 : valore / fattore;
}

}  // namespace

ValoriMateriali SettaMateriali(const Sessione& sessione, bool unAcciaioPerEntrambi) {
  const double f = sessione.unita.FatTensioni;
  const Acciaio& a = sessione.nodo.acciaio;
  const Vite& v = sessione.nodo.vite;
  ValoriMateriali r;
  r.titoloAcciaio =
      std::string(unAcciaioPerEntrambi ? "Acciaio profili e piastre" : "Acciaio profili") +
      " - [NTC08 11.3.4.1] - Tipo " + a.Nome;
  r.fk = a.fy * f;
  r.gM = a.gM;
  r.gMT = a.gMT;
  r.fd = Quoziente(a.fy, a.gM) * f;
  r.fdt = Quoziente(a.fy, a.gMT) * f;
  r.fd40 = Quoziente(a.fy40, a.gM) * f;
  r.fdt40 = Quoziente(a.fy40, a.gMT) * f;
  r.SAmmI = a.SAmm * f;
  r.SAmmII = a.SAmm * kCasoII * f;

  r.titoloViti = "Bulloni - [NTC08 11.3.4.6.1] - Classe " + v.Nome;
  r.fyViti = v.fyViti * f;
  r.fydViti = Quoziente(v.fyViti, v.gMViti) * f;
  r.ftViti = v.ftViti * f;
  r.ftdViti = Quoziente(v.ftViti, v.gMViti) * f;
  r.SAmmIViti = v.SAmmViti * f;
  r.SAmmIIViti = v.SAmmViti * kCasoII * f;
  r.TauAmmIViti = v.TauAmmViti * f;
  r.TauAmmIIViti = v.TauAmmViti * kCasoII * f;
  r.gMViti = v.gMViti;
  return r;
}

}  // namespace qf17
