#include <string>
#include <vector>

#include "librerie/materiali.h"
#include "librerie/numeri.h"
#include "librerie/token.h"
#include "nodo/avvio.h"
#include "nodo/chiavi.h"
#include "nodo/sessione.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

// The job's materials base: the keyed file propmateriali.tx1 that the family's materials form
// writes in the job folder, and the steel this program may take from it.
namespace qf17 {
namespace {

constexpr std::string_view kFileMatBase = "propmateriali.tx1";
constexpr std::string_view kAcciaioPersonalizzato = "ALTRO";
constexpr std::string_view kClassePersonalizzata = "ALTRA";

bool Personalizzato(const std::string& valore, std::string_view parola) {
  return Maiuscolo(Rifila(valore)) == parola;
}

// The keys of one steel of the base, `n` being "1" or "2".
bool DecifraAcciaio(std::string_view riga, const std::string& n, AcciaioMatBase& a) {
  const std::string carp = "ACC_CARP_" + n + "_";
  const std::string calc = "VALORECALCOLATO_ACC_CARP_" + n + "_";
  struct Chiave {
    std::string nome;
    double* campo;
  };
  const Chiave numeri[] = {{calc + "FYK_SP_MIN_40", &a.fyk40},
                           {calc + "FTK_SP_MIN_40", &a.ftk40},
                           {calc + "FYD_SP_MIN_40", &a.fyd40},
                           {calc + "FYK_SP_MIN_80", &a.fyk80},
                           {calc + "FTK_SP_MIN_80", &a.ftk80},
                           {calc + "FYD_SP_MIN_80", &a.fyd80},
                           {calc + "SAMM", &a.SAmm}};
  std::string valore;
  IndiciChiave indici{};
  if (LeggiChiave(riga, carp + "TIPO", valore, indici)) {
    a.Tipo = valore;
    return true;
  }
  for (const Chiave& c : numeri) {
    if (LeggiChiave(riga, c.nome, valore, indici)) {
      *c.campo = NumeroIniziale(valore);
      return true;
    }
  }
  return false;
}

bool DecifraCalcestruzzo(std::string_view riga, MaterialiBase& b) {
  struct Chiave {
    std::string_view nome;
    double* campo;
  };
  const Chiave numeri[] = {
      {"VALORECALCOLATO_CLS_RCK", &b.Rck},     {"CLS_COEFFICIENTE_GAMMAC", &b.GammaC},
      {"VALORECALCOLATO_CLS_FCK", &b.fck},     {"VALORECALCOLATO_CLS_ALFACC", &b.AlfaCC},
      {"VALORECALCOLATO_CLS_FCD", &b.fcd},     {"VALORECALCOLATO_CLS_ECM", &b.Ecm},
      {"VALORECALCOLATO_CLS_SAMM", &b.SAmmCls}};
  std::string valore;
  IndiciChiave indici{};
  if (LeggiChiave(riga, "CLS_CLASSE", valore, indici)) {
    b.ClasseCls = valore;
    return true;
  }
  for (const Chiave& c : numeri) {
    if (LeggiChiave(riga, c.nome, valore, indici)) {
      *c.campo = NumeroIniziale(valore);
      return true;
    }
  }
  return false;
}

void Avviso(Piattaforma& p, const std::string& testo, std::string_view titolo, Icona icona) {
  p.Messaggio(testo, std::string(titolo), icona, Pulsanti::Ok);
}

// Lines 2 on; false, with the family's message, at a custom steel or concrete class.
bool DecifraRighe(const std::vector<std::string>& righe, MaterialiBase& base, Piattaforma& p) {
  for (std::size_t i = 1; i < righe.size(); ++i) {
    switch (DecifraRigaMatBase(righe[i], base)) {
      case EsitoRigaMatBase::Letta:
        break;
      case EsitoRigaMatBase::AcciaioPersonalizzato:
        Avviso(p,
               "Non è possibile utilizzare un tipo di acciaio personalizzato. Impostare un tipo "
               "standard",
               "ATTENZIONE!", Icona::Attenzione);
        return false;
      case EsitoRigaMatBase::CalcestruzzoPersonalizzato:
        Avviso(p,
               "Non è possibile utilizzare una classe personalizzata per il calcestruzzo. "
               "Impostare una classe standard",
               "ATTENZIONE!", Icona::Attenzione);
        return false;
    }
  }
  return true;
}

void BaseNonCorretta(Piattaforma& p) {
  Avviso(p,
         "Materiali base non corretti. Aprire 'Materiali base' dal pannello principale di Korvin "
         "e salvarli",
         "ATTENZIONE!", Icona::Attenzione);
}

}  // namespace

EsitoRigaMatBase DecifraRigaMatBase(std::string_view riga, MaterialiBase& base) {
  std::string valore;
  IndiciChiave indici{};
  if (DecifraAcciaio(riga, "1", base.Acciaio1) || DecifraAcciaio(riga, "2", base.Acciaio2)) {
    if (Personalizzato(base.Acciaio1.Tipo, kAcciaioPersonalizzato) ||
        Personalizzato(base.Acciaio2.Tipo, kAcciaioPersonalizzato)) {
      return EsitoRigaMatBase::AcciaioPersonalizzato;
    }
  } else if (DecifraCalcestruzzo(riga, base)) {
    if (Personalizzato(base.ClasseCls, kClassePersonalizzata)) {
      return EsitoRigaMatBase::CalcestruzzoPersonalizzato;
    }
  } else if (LeggiChiave(riga, "ACC_CARP_MODULODIELASTICITA_E", valore, indici)) {
    base.E = NumeroIniziale(valore);
  } else if (LeggiChiave(riga, "ACC_CARP_COEFFICIENTE_GAMMAM", valore, indici)) {
    base.GammaM = NumeroIniziale(valore);
  } else if (LeggiChiave(riga, "ACC_CA_Tipo", valore, indici)) {
    base.TipoAcciaioCA = valore;
  }
  return EsitoRigaMatBase::Letta;
}

Acciaio AcciaioDaMatBase(const Materiali& materiali, const MaterialiBase& base) {
  const AcciaioMatBase& b = base.Acciaio1;
  Acciaio a;
  a.Nome = Rifila(b.Tipo);
  for (int i = 1; i <= materiali.NumAcciai; ++i) {
    if (materiali.Acciai[i].Nome == a.Nome) {
      a = materiali.Acciai[i];
      break;
    }
  }
  auto sopra = [](double& campo, double valore) {
    if (valore > 0) campo = valore;
  };
  sopra(a.fy, b.fyk40);
  sopra(a.ft, b.ftk40);
  sopra(a.fy40, b.fyk80);
  sopra(a.ft40, b.ftk80);
  sopra(a.SAmm, b.SAmm);
  sopra(a.gM, base.GammaM);
  return a;
}

void LeggiMaterialiBase(Sessione& sessione) {
  Materiali& m = sessione.materiali;
  Piattaforma& p = sessione.piattaforma;
  m.MatBaseAttivo = false;
  m.Base = MaterialiBase{};
  m.AcciaioBase = Acciaio{};
  const std::filesystem::path file = Percorso(sessione.nodo.DirLavoro) / kFileMatBase;
  auto righe = LeggiRighe(file);
  if (!righe) {
    m.CheckMatBase = false;
    Avviso(p, "Materiali Base non impostati, specificare un materiale nell'apposita sezione",
           kTitoloProgramma, Icona::Informazione);
    return;
  }
  std::string release;
  if (righe->empty() || !ValoreDaTestata(righe->front(), "ReleaseQuestoFile", release)) {
    m.CheckMatBase = false;
    BaseNonCorretta(p);
    return;
  }
  MaterialiBase base;
  bool valida = false;
  try {
    valida = DecifraRighe(*righe, base, p);
  } catch (const ErroreFatale&) {
    BaseNonCorretta(p);  // a number or index beyond range
  }
  if (!valida) {
    m.CheckMatBase = false;
    return;
  }
  m.MatBaseAttivo = true;
  m.Base = base;
  m.AcciaioBase = AcciaioDaMatBase(m, base);
}

}  // namespace qf17
