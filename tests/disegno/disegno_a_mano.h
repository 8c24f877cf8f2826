#pragma once

// What the writers' tests share: a session with an empty drawing filled row by row, bypassing
// the primitives, and a font of one glyph.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "disegno/archivio_disegno.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17::prova {

class DisegnoAMano : public ::testing::Test {
 protected:
  void SetUp() override {
    AzzeraDisegno(a);
    // A font of one glyph, "A": one stroke from the baseline's left end to the top right corner
    // of the cell. "&" is absent and only takes its cell.
    s.font.FontNumPunti.fill(-1);
    s.font.FontNumPunti['A'] = 2, s.font.FontX['A'][0] = 0, s.font.FontY['A'][0] = 30;
    s.font.FontX['A'][1] = 99, s.font.FontY['A'][1] = 99;
  }

  std::int32_t Punto(double x, double y) {
    t.CoordX[a.NumCoord] = x;
    t.CoordY[a.NumCoord] = y;
    return a.NumCoord++;
  }
  void Linea(std::int32_t p1, std::int32_t p2, std::int16_t colore, std::int16_t tipo) {
    const std::int32_t i = a.NumLinee++;
    t.LinP1[i] = p1, t.LinP2[i] = p2, t.LinColore[i] = colore, t.LinTipo[i] = tipo;
  }
  void Arco(std::int32_t centro, std::int32_t inizio, std::int32_t fine, std::int16_t colore,
            std::int16_t tipo = 0) {
    const std::int32_t i = a.NumArchi++;
    t.ArcCentro[i] = t.ArcCentro2[i] = centro;
    t.ArcInizio[i] = inizio, t.ArcFine[i] = fine, t.ArcColore[i] = colore, t.ArcTipo[i] = tipo;
  }
  void Testo(std::int32_t punto, std::int16_t angolo, std::int16_t larghezza, std::int16_t altezza,
             std::int16_t colore, const std::string& testo) {
    const std::int32_t i = a.NumTesti++;
    t.TestoPunto[i] = punto, t.TestoAngolo[i] = angolo, t.TestoLarghezza[i] = larghezza;
    t.TestoAltezza[i] = altezza, t.TestoColore[i] = colore, t.TestoStringa[i] = testo;
  }

  PiattaformaRegistrata p;
  Sessione s{p};
  ArchivioDisegno& a = s.disegno;
  TabelleDisegno& t = a.Tabelle();
  CartellaProva cartella;
};

}  // namespace qf17::prova
