#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "librerie/materiale.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

struct Sessione;

struct EsitoMateriali {
  std::string errore;   // empty when the file was read
  bool vecchio = false;  // reinforcing steels in the older four-value layout
};

// Reads MaterialiNTC08.tx1 into the tables. On failure the error text is
// "File materiali (<path>) non trovato o non valido".
EsitoMateriali LeggiMateriali(Materiali& materiali, const std::filesystem::path& file);

// Row by exact name; 0 with the family's message when absent.
int AcciaioDaNome(const Materiali& materiali, std::string_view nome, Piattaforma& piattaforma);
int ViteDaNome(const Materiali& materiali, std::string_view nome, Piattaforma& piattaforma);

enum class ListaMateriale { Profili, Bulloni };
// Whether a row of the steel (Profili) or bolt class (Bulloni) table may be used by a method.
bool MaterialeAmmesso(const Materiali& materiali, std::int16_t tipoVer, ListaMateriale lista,
                      int riga);

// Fills the panel's steel list with the rows allowed in the node's method and selects `voluto`,
// with the family's warning when it is not allowed.
void RiempiListaAcciai(Sessione& sessione, std::string_view voluto);
// Zero-based place among the allowed rows of the first one whose name contains `voluto` or is
// contained in it and differs from it; -1 when none.
int PosizioneInLista(const Materiali& materiali, std::int16_t tipoVer, std::string_view voluto);

// Clicks of the panel, as logic.
void SceltaAcciaio(Sessione& sessione, int indiceLista);
void SceltaVite(Sessione& sessione, int indiceLista);
void CambiaMetodo(Sessione& sessione, std::int16_t tipoVer);

// The job's materials base propmateriali.tx1, read at start-up.
void LeggiMaterialiBase(Sessione& sessione);
// Applies (or, unchecked, withdraws) the base steel: the box "Imposta da Materiali-Base".
void GestioneMaterialeBase(Sessione& sessione);

// After a node load: the node's steel must be allowed by its method and its bolt class must be
// in the table, else the family's message and the first allowed row.
void ControllaMateriali(Sessione& sessione);

// The default steel and bolt class of a new node.
void MaterialiDefault(Sessione& sessione);

// Every strength the materials form shows, in the job's stress unit.
struct ValoriMateriali {
  std::string titoloAcciaio;
  double fk = 0, gM = 0, gMT = 0, fd = 0, fdt = 0, fd40 = 0, fdt40 = 0, SAmmI = 0, SAmmII = 0;
  std::string titoloViti;
  double fyViti = 0, fydViti = 0, ftViti = 0, ftdViti = 0, SAmmIViti = 0, SAmmIIViti = 0,
         TauAmmIViti = 0, TauAmmIIViti = 0, gMViti = 0;
};
ValoriMateriali SettaMateriali(const Sessione& sessione);

}  // namespace qf17
