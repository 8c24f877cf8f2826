#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <utility>
#include <vector>

namespace qf17 {

namespace sezioni {

// The inputs a group's sections are made from, bit for bit: any change, even 0 to -0, makes
// the group's sections be worked out again.
class Impronta {
 public:
  void Inizia() { nuova_.clear(); }
  void Aggiungi(double v) { nuova_.push_back(std::bit_cast<std::uint64_t>(v)); }
  void Aggiungi(std::int64_t v) { nuova_.push_back(static_cast<std::uint64_t>(v)); }
  // True when what was added since Inizia differs from what was last accepted; it is then
  // accepted in its place.
  bool Cambiata();

 private:
  std::vector<std::uint64_t> accettata_;
  std::vector<std::uint64_t> nuova_;
  bool vuota_ = true;
};

// A group's bolts by increasing x, equal x by bolt number (what an exchange sort of neighbours
// gives), so that those near a section in x are found without scanning the whole group.
// Every x must be finite.
class BulloniPerX {
 public:
  // x[b] is the x of bolt b + 1.
  explicit BulloniPerX(const std::vector<double>& x);

  int Quanti() const { return static_cast<int>(ordine_.size()); }
  // Bolt (0-based) at place p (0-based) of the order.
  int Bullone(int p) const { return ordine_[p]; }
  double XMassimo() const { return xOrdinate_.back(); }
  // How many bolts have x >= xs.
  int ContaDa(double xs) const;

  // Visits, by increasing bolt number, a set of bolts that holds every bolt b whose distance
  // |x(b) - xs|, as the subtraction gives it, is at most d. The visitor tests its own
  // condition: the set may hold more.
  template <class Visita>
  void VisitaVicini(double xs, double d, Visita&& visita) const {
    auto [da, a] = Finestra(xs, d);
    const int w = a - da, n = Quanti();
    if (w <= 0) return;
    // A wide window costs a sort of its own: a plain pass over the group is as cheap.
    if (static_cast<long>(w) * 16 >= n) {
      for (int b = 0; b < n; ++b) visita(b);
      return;
    }
    vicini_.assign(ordine_.begin() + da, ordine_.begin() + a);
    std::sort(vicini_.begin(), vicini_.end());
    for (int b : vicini_) visita(b);
  }

 private:
  // Places [da, a) of the bolts whose |x - xs| <= d; a contiguous run, since the rounded
  // difference grows with the distance.
  std::pair<int, int> Finestra(double xs, double d) const;

  std::vector<int> ordine_;
  std::vector<double> xOrdinate_;
  mutable std::vector<int> vicini_;
};

// True when every value is finite: only then do the sorted shortcuts give what the plain
// loops give.
bool TuttiFiniti(const std::vector<double>& v);

enum class EsitoSezione : std::uint8_t {
  Calcolata,  // a stress
  AreaNulla,  // the net area message, no stress
  Errore      // the error message, and the member's scan ends
};

// A diffusion section of the gusset: the bolts from it outward and its net area.
struct SezioneDiffusione {
  int Cont = 0;
  double ASez = 0;
  EsitoSezione esito = EsitoSezione::Calcolata;
};

// A net section of a member through one bolt, with the effective area for a force in tension
// (N > 0) and for any other force; a null area stands for the message.
struct SezioneNetta {
  double AnTrazione = 0;
  double AnAltro = 0;
  double In = 0;
  bool nullaTrazione = false;
  bool nullaAltro = false;
};

struct DiffusioneAsta {
  Impronta impronta;
  // In the order of the scan; sections skipped without a word are left out.
  std::vector<SezioneDiffusione> sezioni;
};

struct NettaAsta {
  Impronta impronta;
  std::vector<SezioneNetta> sezioni;  // bolt by bolt
};

// A net section of the chord through one bolt: the area of the pair of profiles, or 0 for the
// message.
struct NettaCorrente {
  Impronta impronta;
  std::vector<double> An;
};

}  // namespace sezioni

// What the gusset's diffusion sections and the net sections of members and chord are, worked
// out from the bolts and sections alone. The load set plays no part in them, so one cache held
// over the load sets of a run lets each set do only its own arithmetic. Each call checks the
// inputs of every group against what its sections were made from and remakes those that
// changed, so a cache is never stale, whatever the node does between calls.
class CacheSezioni {
 public:
  std::array<sezioni::DiffusioneAsta, 4> diffusione;  // members 1..3
  std::array<sezioni::NettaAsta, 4> aste;             // members 1..3
  sezioni::NettaCorrente corrente;
};

}  // namespace qf17
