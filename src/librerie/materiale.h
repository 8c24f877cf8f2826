#pragma once

#include <string>

#include "nodo/tabella.h"

namespace qf17 {

// Steel of the members and gusset; strengths in daN/cm2.
struct Acciaio {
  std::string Nome;
  std::string Norma;
  double SAmm = 0;    // allowable stress, up to 40 mm
  double SAmm40 = 0;  // allowable stress, over 40 mm
  double fy = 0;
  double fy40 = 0;
  double ft = 0;
  double ft40 = 0;
  double gM = 0;
  double gMT = 0;

  bool Vuoto() const { return Nome.empty(); }
  bool operator==(const Acciaio&) const = default;
};

// Bolt class; strengths in daN/cm2.
struct Vite {
  std::string Nome;
  double SAmmViti = 0;
  double TauAmmViti = 0;
  double fyViti = 0;
  double ftViti = 0;
  double fdVit = 0;
  double gMViti = 0;

  bool operator==(const Vite&) const = default;
};

struct Calcestruzzo {
  std::string Nome;
  double Rck = 0;
  double Valore2 = 0;
};

struct AcciaioCA {
  std::string Nome;
  double Valori[6] = {0, 0, 0, 0, 0, 0};
};

inline constexpr int kMaxMateriali = 50;

}  // namespace qf17

#include <vector>

namespace qf17 {

// The tables of the materials file, the job's materials base and the per-method memory of the
// steel.
struct Materiali {
  Tabella<Acciaio, 0, kMaxMateriali> Acciai;
  int NumAcciai = 0;
  Tabella<Acciaio, 0, kMaxMateriali> AcciaiChiusi;
  int NumAcciaiChiusi = 0;
  Tabella<Vite, 0, kMaxMateriali> Viti;
  int NumViti = 0;
  Tabella<Calcestruzzo, 0, kMaxMateriali> Calcestruzzi;
  int NumCalcestruzzi = 0;
  Tabella<AcciaioCA, 0, kMaxMateriali> AcciaiCA;
  int NumAcciaiCA = 0;

  bool MatBaseAttivo = false;
  Acciaio AcciaioBase;
  bool CheckMatBase = false;  // the box "Imposta da Materiali-Base"
  Acciaio AcciaioTA;          // the steel last used by each method; empty at start
  Acciaio AcciaioSLU;

  // The steel list of the panel, as logic: the names offered and the place selected (-1 none).
  std::vector<std::string> ListaAcciai;
  int ListaAcciaiScelta = -1;
};

}  // namespace qf17
