#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "librerie/materiale.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

struct Sessione;

struct EsitoMateriali {
  std::string errore;    // empty when the file was read
  bool vecchio = false;  // reinforcing steels in the older four-value layout
};

// Reads MaterialiNTC08.tx1 into the tables. On failure the error text is
// "File materiali (<path>) non trovato o non valido" and the tables are left as they were.
// The file is not valid when it cannot be opened, when a table ends before its rows, when a
// count is negative or above 50, or when the steel table of open sections or the bolt class
// table is missing.
EsitoMateriali LeggiMateriali(Materiali& materiali, const std::filesystem::path& file);

// Row by exact name; 0 with the family's message (critical) when absent.
int AcciaioDaNome(const Materiali& materiali, std::string_view nome, Piattaforma& piattaforma);
int ViteDaNome(const Materiali& materiali, std::string_view nome, Piattaforma& piattaforma);

enum class ListaMateriale { Profili, Bulloni };
// Whether a row of the steel (Profili) or bolt class (Bulloni) table may be used by a method.
// Allowable stresses (any method but 1) need both allowable stresses of a steel; limit states
// (1) need both yield strengths of a steel and, for a bolt class, fdVit and gMViti. A row
// outside the table's count is never allowed.
bool MaterialeAmmesso(const Materiali& materiali, std::int16_t tipoVer, ListaMateriale lista,
                      int riga);
// The steel rows the method allows, in table order: the rows behind the panel's steel list.
std::vector<int> RigheAcciaiAmmesse(const Materiali& materiali, std::int16_t tipoVer);
// The bolt class list of the panel: every class of the table, in order.
std::vector<std::string> ListaViti(const Materiali& materiali);

// Fills the panel's steel list with the rows allowed in the node's method and selects `voluto`.
// When `voluto` is not in the list, the family's warning goes up, the place that
// PosizioneInLista finds (or the first one, when it finds none) is selected and its table row
// becomes the node's steel. With an empty `voluto` nothing is selected.
void RiempiListaAcciai(Sessione& sessione, std::string_view voluto);
// Zero-based place among the allowed rows of the first one whose name contains `voluto`, or is
// contained in it and differs from it (case counts); -1 when none.
int PosizioneInLista(const Materiali& materiali, std::int16_t tipoVer, std::string_view voluto);
// The place of exactly `nome` in the panel's steel list as it stands; -1 when absent.
int PostoInLista(const Materiali& materiali, std::string_view nome);

// Clicks of the panel, as logic (the panel's re-entry guard is the caller's); a list click does
// nothing at a place beyond its list.
// The steel list: the node's steel becomes table row `indiceLista` + 1, even when the list skips
// rows the method forbids (the family's behaviour, kept).
void SceltaAcciaio(Sessione& sessione, int indiceLista);
// The bolt class list: the node's class becomes table row `indiceLista` + 1.
void SceltaVite(Sessione& sessione, int indiceLista);
// The method option: the steel of the method left is remembered, the steel remembered for the
// method chosen comes back (the first time it is the current one) and the list is refilled.
// Choosing the method already set changes nothing.
void CambiaMetodo(Sessione& sessione, std::int16_t tipoVer);

// The job's materials base propmateriali.tx1 in the job folder, read at start-up.
void LeggiMaterialiBase(Sessione& sessione);
enum class EsitoRigaMatBase { Letta, AcciaioPersonalizzato, CalcestruzzoPersonalizzato };
// One line of the materials base into `base`; a custom steel or concrete class is reported.
// A number beyond range is an ErroreFatale.
EsitoRigaMatBase DecifraRigaMatBase(std::string_view riga, MaterialiBase& base);
// The base steel: the steel table's row named as steel 1 of the base (only the name when the
// table has none), with the base's strengths put over it where the base gives a positive value:
// fy, ft from the values up to 40 mm, fy40, ft40 from those over 40 mm, SAmm, and gM from the
// base's partial factor. SAmm40 and gMT stay the table's.
Acciaio AcciaioDaMatBase(const Materiali& materiali, const MaterialiBase& base);
// The box "Imposta da Materiali-Base" clicked: sets it and runs GestioneMaterialeBase.
void CliccaCheckMatBase(Sessione& sessione, bool spuntato);
// With a valid base and the box checked, the base steel becomes the node's steel; when the
// method does not allow its name, the family's warning, the box cleared and the first allowed
// row. Unchecked, the steel stays as it is and the list is free again.
void GestioneMaterialeBase(Sessione& sessione);

// After a node load: the node's steel must be allowed by its method and its bolt class must be
// an allowed class of the table, else the family's message and the first allowed row. The
// steel list is refilled for the node's method and shows the node's steel.
void ControllaMateriali(Sessione& sessione);

// The default steel and bolt class of a new node: class table row 4 whatever it holds; steel
// table row 1, or the base steel when the base is valid and its box checked.
void MaterialiDefault(Sessione& sessione);

// Every strength the materials form shows, in the job's stress unit.
struct ValoriMateriali {
  std::string titoloAcciaio;
  double fk = 0, gM = 0, gMT = 0, fd = 0, fdt = 0, fd40 = 0, fdt40 = 0, SAmmI = 0, SAmmII = 0;
  std::string titoloViti;
  double fyViti = 0, fydViti = 0, ftViti = 0, ftdViti = 0, SAmmIViti = 0, SAmmIIViti = 0,
         TauAmmIViti = 0, TauAmmIIViti = 0, gMViti = 0;
};
// Strengths times the job's stress factor; partial factors as they are. A quotient over a zero
// partial factor shows 0. `unAcciaioPerEntrambi`: the steel of the members serves the plates
// too, and the title says so.
ValoriMateriali SettaMateriali(const Sessione& sessione, bool unAcciaioPerEntrambi = false);

}  // namespace qf17
