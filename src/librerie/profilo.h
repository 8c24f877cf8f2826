#pragma once

#include <cstdint>
#include <string>

#include "nodo/tabella.h"

namespace qf17 {

// One section: a row of the section table, and also the type of the chord and of each member,
// so that choosing a section copies a whole row into the node. mm, mm2, mm4.
struct Profilo {
  std::string Nome;  // family and size joined: "IPE140", "LU60x6", "UPN120"
  double h = 0;
  double b = 0;
  double a = 0;  // web thickness
  double e = 0;  // flange thickness
  double Area = 0;
  double eAnima = 0;      // channels: flange thickness at the web
  double eBordo = 0;      // channels: flange thickness at the toe
  double r1 = 0;          // root radius; channels and angles: derived from e or a
  double r2 = 0;          // toe radius; same remark
  double dBarX = 0;       // centroid distance measured along h (angles), h / 2 for channels
  double dBarY = 0;       // centroid distance measured along b
  std::int16_t Tipo = 0;  // see TipoProfilo
  double I1 = 0;          // about the axis parallel to b
  double I2 = 0;          // about the axis parallel to h
  double I3 = 0;          // torsion constant, or the minimum principal moment of an angle
  std::string Classe;     // one character

  bool operator==(const Profilo&) const = default;
};

enum class TipoProfilo : std::int16_t { Canale = 0, Angolare = 1, DoppioT = 2 };

inline constexpr int kMaxProfili = 2000;

// The section table: rows 1..NumProfili1 from the first pass (I and H), then the second pass
// (channels and angles) up to NumProfiliTot. Row 0 stays empty: a failed lookup yields it.
struct LibreriaProfili {
  Tabella<Profilo, 0, kMaxProfili> Profili;
  int NumProfili1 = 0;
  int NumProfili2 = 0;
  int NumProfiliTot = 0;
};

}  // namespace qf17
