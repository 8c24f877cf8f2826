#pragma once

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

#include "piattaforma/errori.h"

namespace qf17 {

[[noreturn]] inline void IndiceFuoriTabella(int indice, int primo, int ultimo) {
  throw ErroreFatale("Indice " + std::to_string(indice) + " fuori dalla tabella (" +
                     std::to_string(primo) + ".." + std::to_string(ultimo) + ")");
}

// A fixed table with the bounds of the family's records: allocated once, indexed from `Primo`
// (usually 0, the row that stays empty) to `Ultimo`. An index outside is an ErroreFatale,
// never undefined behaviour.
template <class T, int Primo, int Ultimo>
class Tabella {
  static_assert(Ultimo >= Primo);

 public:
  static constexpr int primo = Primo;
  static constexpr int ultimo = Ultimo;

  Tabella() : righe_(Ultimo - Primo + 1) {}

  T& operator[](int i) { return righe_[Posizione(i)]; }
  const T& operator[](int i) const { return righe_[Posizione(i)]; }
  static bool Contiene(int i) { return i >= Primo && i <= Ultimo; }
  void Riempi(const T& valore) { righe_.assign(righe_.size(), valore); }

 private:
  static std::size_t Posizione(int i) {
    if (!Contiene(i)) IndiceFuoriTabella(i, Primo, Ultimo);
    return static_cast<std::size_t>(i - Primo);
  }
  std::vector<T> righe_;
};

// Two indices, each with its own bounds, as the family's two-dimensional records.
template <class T, int Primo1, int Ultimo1, int Primo2, int Ultimo2>
class Tabella2 {
 public:
  Tabella2() : righe_((Ultimo1 - Primo1 + 1) * (Ultimo2 - Primo2 + 1)) {}

  T& operator()(int i, int j) { return righe_[Posizione(i, j)]; }
  const T& operator()(int i, int j) const { return righe_[Posizione(i, j)]; }
  static bool Contiene(int i, int j) {
    return i >= Primo1 && i <= Ultimo1 && j >= Primo2 && j <= Ultimo2;
  }

 private:
  static std::size_t Posizione(int i, int j) {
    if (i < Primo1 || i > Ultimo1) IndiceFuoriTabella(i, Primo1, Ultimo1);
    if (j < Primo2 || j > Ultimo2) IndiceFuoriTabella(j, Primo2, Ultimo2);
    return static_cast<std::size_t>((i - Primo1) * (Ultimo2 - Primo2 + 1) + (j - Primo2));
  }
  std::vector<T> righe_;
};

// Zeroed storage for numbers, taken from the system as untouched pages: a result table of tens
// of megabytes that a method never writes costs no memory, where a vector would write every
// zero of it.
template <class T>
class ZeriGrandi {
  static_assert(std::is_arithmetic_v<T>);

 public:
  explicit ZeriGrandi(std::size_t n) : n_(n), dati_(static_cast<T*>(std::calloc(n, sizeof(T)))) {
    if (!dati_) throw std::bad_alloc();
  }
  ZeriGrandi(const ZeriGrandi& altro) : ZeriGrandi(altro.n_) {
    std::memcpy(dati_.get(), altro.dati_.get(), n_ * sizeof(T));
  }
  ZeriGrandi& operator=(const ZeriGrandi& altro) {
    if (this != &altro) *this = ZeriGrandi(altro);
    return *this;
  }
  ZeriGrandi(ZeriGrandi&&) noexcept = default;
  ZeriGrandi& operator=(ZeriGrandi&&) noexcept = default;

  T& operator[](std::size_t i) { return dati_[i]; }
  const T& operator[](std::size_t i) const { return dati_[i]; }

 private:
  struct Libera {
    void operator()(T* p) const { std::free(p); }
  };
  std::size_t n_;
  std::unique_ptr<T[], Libera> dati_;
};

// Three indices, for the per-bolt, per-set result tables.
template <class T, int Primo1, int Ultimo1, int Primo2, int Ultimo2, int Primo3, int Ultimo3>
class Tabella3 {
  static constexpr int n2 = Ultimo2 - Primo2 + 1;
  static constexpr int n3 = Ultimo3 - Primo3 + 1;

 public:
  Tabella3() : righe_(static_cast<std::size_t>(Ultimo1 - Primo1 + 1) * n2 * n3) {}

  T& operator()(int i, int j, int k) { return righe_[Posizione(i, j, k)]; }
  const T& operator()(int i, int j, int k) const { return righe_[Posizione(i, j, k)]; }

 private:
  static std::size_t Posizione(int i, int j, int k) {
    if (i < Primo1 || i > Ultimo1) IndiceFuoriTabella(i, Primo1, Ultimo1);
    if (j < Primo2 || j > Ultimo2) IndiceFuoriTabella(j, Primo2, Ultimo2);
    if (k < Primo3 || k > Ultimo3) IndiceFuoriTabella(k, Primo3, Ultimo3);
    return (static_cast<std::size_t>(i - Primo1) * n2 + static_cast<std::size_t>(j - Primo2)) * n3 +
           static_cast<std::size_t>(k - Primo3);
  }
  ZeriGrandi<T> righe_;
};

}  // namespace qf17
