#pragma once

#include <string>
#include <vector>

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
  double fdVit = 0;  // design strength of the class, read by the allowable-stress bolt checks
  double gMViti = 0;

  bool operator==(const Vite&) const = default;
};

// Concrete class: kept for the family's shared materials form only.
struct Calcestruzzo {
  std::string Nome;
  double Rck = 0;
  double Valore2 = 0;
};

// Reinforcing steel: kept for the family's shared materials form only. The six values in file
// order; a row of the older four-value layout holds values 1, 3, 4 and 5, and the reader puts
// 5400 into value 2 and 2550 into value 6 (the density).
struct AcciaioCA {
  std::string Nome;
  double Valori[6] = {0, 0, 0, 0, 0, 0};
};

inline constexpr int kMaxMateriali = 50;

// What the job's materials base propmateriali.tx1 holds, as read. Strengths in daN/cm2; a value
// whose key is missing stays 0.
struct AcciaioMatBase {
  std::string Tipo;  // steel name; "ALTRO" is a custom steel, which this program refuses
  double fyk40 = 0, ftk40 = 0, fyd40 = 0;  // thickness up to 40 mm
  double fyk80 = 0, ftk80 = 0, fyd80 = 0;  // thickness over 40 mm
  double SAmm = 0;
};

struct MaterialiBase {
  AcciaioMatBase Acciaio1;  // the steel of the members
  AcciaioMatBase Acciaio2;
  double E = 0;
  double GammaM = 0;
  std::string ClasseCls;  // "ALTRA" is a custom class, which this program refuses
  double Rck = 0, GammaC = 0, fck = 0, AlfaCC = 0, fcd = 0, Ecm = 0, SAmmCls = 0;
  std::string TipoAcciaioCA;
};

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
  MaterialiBase Base;
  Acciaio AcciaioBase;
  bool CheckMatBase = false;  // the box "Imposta da Materiali-Base"
  Acciaio AcciaioTA;          // the steel last used by each method; empty at start
  Acciaio AcciaioSLU;

  // The steel list of the panel, as logic: the names offered and the place selected (-1 none).
  std::vector<std::string> ListaAcciai;
  int ListaAcciaiScelta = -1;
};

}  // namespace qf17
