#include "librerie/libreria_profili.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "librerie/numeri.h"
#include "librerie/token.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

constexpr std::string_view kFineLibreria = "*END*";

// The column layouts of the library. Families of the shared file that this program never
// reaches (LLU, T.QUAD, TUBO, INP, UB, UC) keep their layout so that any filter reads them right.
enum class Tracciato {
  Nessuno,
  Canale,
  AngoloUguale,
  AngoloDisuguale,
  DoppioAngolo,
  TuboQuadro,
  Tubo,
  IPN,
  DoppioT
};

constexpr std::array<std::string_view, 28> kFamiglieDoppioT = {
    "IPE", "IPEA", "IPER", "IPEO", "IPEV", "HEA", "HEAA", "HEB",  "HEM", "HEC",
    "DIL", "HER",  "HLAA", "HLA",  "HLB",  "HLM", "HLR",  "HXAA", "HXA", "HXB",
    "HXM", "HXR",  "HD",   "HP",   "M",    "W",   "UB",   "UC"};

Tracciato TracciatoDi(std::string_view famiglia) {
  if (famiglia == "UPN") return Tracciato::Canale;
  if (famiglia == "LU") return Tracciato::AngoloUguale;
  if (famiglia == "LD") return Tracciato::AngoloDisuguale;
  if (famiglia == "LLU") return Tracciato::DoppioAngolo;
  if (famiglia == "T.QUAD") return Tracciato::TuboQuadro;
  if (famiglia == "TUBO") return Tracciato::Tubo;
  if (famiglia == "INP") return Tracciato::IPN;
  for (auto f : kFamiglieDoppioT) {
    if (famiglia == f) return Tracciato::DoppioT;
  }
  return Tracciato::Nessuno;
}

// The filter holds each family between blanks; an empty field (a blank line) never passes,
// although the filter's double blanks would contain it.
bool Accettata(const std::string& famiglia, std::string_view filtro) {
  return !famiglia.empty() && filtro.find(" " + famiglia + " ") != std::string_view::npos;
}

// Fields t1, t2... of a line after its family and size; a missing field reads as empty.
class Campi {
 public:
  static constexpr int kMassimo = 21;  // the widest layout ends at t21

  explicit Campi(std::string resto) {
    while (!resto.empty() && static_cast<int>(campi_.size()) < kMassimo) {
      campi_.push_back(ProssimoToken(resto));
    }
  }
  const std::string& Testo(int t) const {
    static const std::string vuoto;
    return t >= 1 && t <= static_cast<int>(campi_.size()) ? campi_[t - 1] : vuoto;
  }
  int Quanti() const { return static_cast<int>(campi_.size()); }
  double Numero(int t) const { return NumeroIniziale(Testo(t)); }
  std::string PrimoCarattere(int t) const { return PrimiCaratteri(Testo(t), 1); }

 private:
  std::vector<std::string> campi_;
};

// t4 I2, t6 I3, t8 Classe: channels, angles and tubes.
void LeggiMomenti(Profilo& p, const Campi& c) {
  p.I2 = c.Numero(4);
  p.I3 = c.Numero(6);
  p.Classe = c.PrimoCarattere(8);
}

void LeggiCanale(Profilo& p, const Campi& c) {
  LeggiMomenti(p, c);
  p.h = c.Numero(11);
  p.b = c.Numero(12);
  p.a = c.Numero(13);
  p.e = c.Numero(14);
  p.dBarY = c.Numero(15);
  p.r1 = c.Numero(16);
  p.r2 = c.Numero(17);
  p.dBarX = p.h / 2;
}

void LeggiAngoloUguale(Profilo& p, const Campi& c) {
  LeggiMomenti(p, c);
  p.b = c.Numero(11);
  p.a = c.Numero(12);
  p.dBarX = c.Numero(13);
  p.dBarY = c.Numero(14);
  p.r1 = c.Numero(16);
  p.r2 = c.Numero(17);
  p.h = p.b;
  p.e = p.a;
}

void LeggiAngoloDisuguale(Profilo& p, const Campi& c) {
  LeggiMomenti(p, c);
  p.h = c.Numero(11);
  p.b = c.Numero(12);
  p.a = c.Numero(13);
  p.dBarX = c.Numero(14);
  p.dBarY = c.Numero(15);
  p.r1 = c.Numero(16);
  p.r2 = c.Numero(17);
  p.e = p.a;
}

// No I3 in this layout: the row keeps the one it held.
void LeggiDoppioAngolo(Profilo& p, const Campi& c) {
  p.I2 = c.Numero(3);
  p.Classe = c.PrimoCarattere(5);
  p.b = c.Numero(8);
  p.a = c.Numero(9);
  p.e = c.Numero(10);
  p.h = p.b;
}

// Round tube: b is the diameter, a the wall, h stays 0; a square tube has h = b.
void LeggiTubo(Profilo& p, const Campi& c, bool quadro) {
  LeggiMomenti(p, c);
  p.b = c.Numero(11);
  p.a = c.Numero(12);
  if (quadro) p.h = p.b;
}

// t5 I2, t10 I3, t13 Classe, t16.. h b a e r1, and r2 in t21 for the taper-flange INP only.
void LeggiDoppioT(Profilo& p, const Campi& c, bool conRaggioAlBordo) {
  p.I2 = c.Numero(5);
  p.I3 = c.Numero(10);
  p.Classe = c.PrimoCarattere(13);
  p.h = c.Numero(16);
  p.b = c.Numero(17);
  p.a = c.Numero(18);
  p.e = c.Numero(19);
  p.r1 = c.Numero(20);
  if (conRaggioAlBordo) p.r2 = c.Numero(21);
}

// The last column each layout reads: a shorter line would give a section with zero dimensions.
int UltimaColonna(Tracciato tracciato) {
  switch (tracciato) {
    case Tracciato::Canale:
    case Tracciato::AngoloUguale:
    case Tracciato::AngoloDisuguale:
      return 17;
    case Tracciato::DoppioAngolo:
      return 10;
    case Tracciato::TuboQuadro:
    case Tracciato::Tubo:
      return 12;
    case Tracciato::IPN:
      return 21;
    case Tracciato::DoppioT:
      return 20;
    case Tracciato::Nessuno:
      return 0;
  }
  return 0;
}

// t1 Area and t2 I1 in every layout, then the family's own columns.
void LeggiCampi(Profilo& p, Tracciato tracciato, const Campi& c) {
  p.Area = c.Numero(1);
  p.I1 = c.Numero(2);
  switch (tracciato) {
    case Tracciato::Canale:
      return LeggiCanale(p, c);
    case Tracciato::AngoloUguale:
      return LeggiAngoloUguale(p, c);
    case Tracciato::AngoloDisuguale:
      return LeggiAngoloDisuguale(p, c);
    case Tracciato::DoppioAngolo:
      return LeggiDoppioAngolo(p, c);
    case Tracciato::TuboQuadro:
      return LeggiTubo(p, c, true);
    case Tracciato::Tubo:
      return LeggiTubo(p, c, false);
    case Tracciato::IPN:
      return LeggiDoppioT(p, c, true);
    case Tracciato::DoppioT:
      return LeggiDoppioT(p, c, false);
    case Tracciato::Nessuno:
      return;
  }
}

// The reading proper; nullopt when the file ends before "*END*", a line falls beyond the table
// or a line of an accepted family lacks columns (then `motivo` says which).
std::optional<int> LeggiLinee(const std::vector<std::string>& righe, int primaRiga,
                              LibreriaProfili& libreria, double fattoreLunghezza,
                              double fattoreArea, std::string_view filtro, std::string& motivo) {
  int riga = primaRiga;
  int numeroLinea = 0;
  for (const auto& grezza : righe) {
    ++numeroLinea;
    std::string linea = Rifila(grezza);
    if (linea == kFineLibreria) return riga - primaRiga;
    if (linea == "*" || linea == "%") continue;
    // Every other line first clears and names the row at the counter, even one whose family the
    // filter then drops: so the table must still have a row there.
    if (!decltype(libreria.Profili)::Contiene(riga)) return std::nullopt;
    Profilo& profilo = libreria.Profili[riga];
    AzzeraProfilo(profilo);
    std::string famiglia = ProssimoToken(linea);
    profilo.Nome = famiglia + ProssimoToken(linea);
    if (!Accettata(famiglia, filtro)) continue;
    Tracciato tracciato = TracciatoDi(famiglia);
    if (tracciato == Tracciato::Nessuno) continue;
    Campi campi(linea);
    if (campi.Quanti() < UltimaColonna(tracciato)) {
      motivo = "Riga " + std::to_string(numeroLinea) + " (" + profilo.Nome +
               "): " + std::to_string(campi.Quanti()) + " colonne di dati invece di " +
               std::to_string(UltimaColonna(tracciato)) + ".";
      return std::nullopt;
    }
    LeggiCampi(profilo, tracciato, campi);
    ScalaProfilo(profilo, fattoreLunghezza, fattoreArea);
    ++riga;
  }
  return std::nullopt;
}

}  // namespace

void AzzeraProfilo(Profilo& profilo) {
  profilo.h = profilo.b = profilo.a = profilo.e = 0;
  profilo.r1 = profilo.r2 = 0;
  profilo.dBarX = profilo.dBarY = 0;
  profilo.Classe.clear();
}

void ScalaProfilo(Profilo& profilo, double fattoreLunghezza, double fattoreArea) {
  for (double* l : {&profilo.h, &profilo.b, &profilo.a, &profilo.e, &profilo.r1, &profilo.r2,
                    &profilo.dBarX, &profilo.dBarY}) {
    *l *= fattoreLunghezza;
  }
  profilo.Area *= fattoreArea * fattoreArea;
  const double quarta = fattoreArea * fattoreArea * fattoreArea * fattoreArea;
  profilo.I1 *= quarta;
  profilo.I2 *= quarta;
  profilo.I3 *= quarta;
}

int LeggiProfilario(const std::filesystem::path& file, int primaRiga, LibreriaProfili& libreria,
                    double fattoreLunghezza, double fattoreArea, std::string_view filtro,
                    std::string* motivo) {
  auto righe = LeggiRighe(std::filesystem::path(Rifila(file.string())));
  if (!righe) return 0;
  std::string perche;
  try {
    int letti =
        LeggiLinee(*righe, primaRiga, libreria, fattoreLunghezza, fattoreArea, filtro, perche)
            .value_or(0);
    if (motivo) *motivo = perche;
    return letti;
  } catch (const ErroreFatale&) {
    return 0;  // a number beyond the range of a double: the library is as unusable as a missing one
  }
}

bool LeggiProfili(LibreriaProfili& libreria, const std::filesystem::path& file,
                  std::string* motivo) {
  libreria.NumProfili1 = LeggiProfilario(file, 1, libreria, 1, 10, kFiltroPrimaPassata, motivo);
  libreria.NumProfili2 = libreria.NumProfili1 == 0
                             ? 0
                             : LeggiProfilario(file, libreria.NumProfili1 + 1, libreria, 1, 10,
                                               kFiltroSecondaPassata, motivo);
  libreria.NumProfiliTot = libreria.NumProfili1 + libreria.NumProfili2;
  return libreria.NumProfili1 != 0 && libreria.NumProfili2 != 0;
}

}  // namespace qf17
