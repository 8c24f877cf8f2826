#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qf17 {

class Piattaforma;

// What the import takes from the family's 3D structural model, left in the job folder by the
// modelling and solving tools; everything else in those files is stepped over.

struct PuntoModello {
  double x = 0, y = 0, z = 0;
};
struct NodoModello {
  std::int16_t punto = 0;  // 0-based point index
  std::int16_t numero = 0;
};
struct AstaModello {
  std::int16_t punto1 = 0, punto2 = 0;  // 0-based point indices of the two ends
  std::int16_t tipoLinea = 0, colore = 0;
  int nome = 0;     // name number; below 1 the element is not a member for this program
  int sezione = 0;  // 0-based index into sezioni_
};
// struttur.str. The result files number members by their place in `aste`.
struct StrutturaModello {
  std::vector<PuntoModello> punti;
  std::vector<NodoModello> nodi;
  std::vector<AstaModello> aste;
  int condizioni = 0;  // load conditions
};

inline constexpr std::string_view kMessaggioReleaseVecchia =
    "Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Editor Grafico'";

// A file of the model that cannot be opened or read: "Errore: file PATH errato o mancante.",
// under "ERRORE". No value then.
std::optional<StrutturaModello> LeggiStruttura(const std::filesystem::path& file,
                                               Piattaforma& piattaforma);
// ControllaRelease on the first line: a file without "release" there is of the old version;
// its message comes up, and with `fine` the program ends (FineProgramma).
bool ControllaRelease(std::string_view riga, bool fine, Piattaforma& piattaforma);

// sezioni_: the section names by index from 0.
std::optional<std::vector<std::string>> LeggiSezioniModello(const std::filesystem::path& file,
                                                            Piattaforma& piattaforma);

// combinaz.tot: case numbers and their method words ("TENSAMM", "RARA", "SLU"). More cases than
// the table's 200: "Errore: numero di combinazioni eccessivo", nothing stored.
struct CombinazioniModello {
  std::vector<std::int16_t> numeri;
  std::vector<std::string> tipi;
};
std::optional<CombinazioniModello> LeggiCombinazioni(const std::filesystem::path& file,
                                                     Piattaforma& piattaforma);
// The text between "TIPOVER=" and the next "|"; empty without the key.
std::string TipoCombinazione(std::string_view riga);

// "astec007.bin" for load case 7, "aste_042.bin" for load condition 42, "astec123.bin".
std::string NomeFileRisultati(bool caso, int numero);

// A binary result file: 56-byte little-endian records, a header and then, per member, station
// and sextet, a force record.
class RisultatiModello {
 public:
  // No value when the file cannot be read or is shorter than its header says.
  static std::optional<RisultatiModello> Apri(const std::filesystem::path& file);
  int Aste() const { return aste_; }
  int Stazioni() const { return stazioni_; }
  int Sestetti() const { return sestetti_; }
  // The name number in the first record of member `asta` (0-based).
  int NomeAsta(int asta) const;
  // The axial force (daN) of member `asta` at station `stazione` (0 end 1, Stazioni() - 1 end
  // 2), sextet `sestetto` from 1.
  double SforzoNormale(int asta, int stazione, int sestetto) const;

 private:
  std::size_t Posizione(int asta, int stazione, int sestetto) const;
  std::string byte_;
  int aste_ = 0, stazioni_ = 0, sestetti_ = 0;
};

}  // namespace qf17
