#pragma once

#include "piattaforma/piattaforma.h"

namespace qf17 {

// The busy pointer for the life of the object: back to normal however the command ends.
class PuntatoreOccupato {
 public:
  explicit PuntatoreOccupato(Piattaforma& p) : p_(p) { p_.Occupato(true); }
  ~PuntatoreOccupato() { p_.Occupato(false); }
  PuntatoreOccupato(const PuntatoreOccupato&) = delete;
  PuntatoreOccupato& operator=(const PuntatoreOccupato&) = delete;

 private:
  Piattaforma& p_;
};

}  // namespace qf17
