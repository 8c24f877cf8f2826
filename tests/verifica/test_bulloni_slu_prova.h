#pragma once

#include "verifica/test_bulloni_ta_prova.h"

namespace qf17::prova {

// The hand-built node of the bolt checks (channels 120 high, flanges 10, web 6, gusset 10, so
// tmin = 6; member insertion and chord length 120; bolted height 100; holes without tolerance)
// with the materials of the limit states: class 8.8 with ft 8000 and gamma 1.25, steel with
// ft 3600 (3400 over 40 mm), fy 2350 (2150), gamma 1.05. Exposure 1: no upper edge limit.
struct ProvaBulloniSLU : ProvaBulloniTA {
  ProvaBulloniSLU() {
    nodo.vite.Nome = "8.8", nodo.vite.ftViti = 8000, nodo.vite.gMViti = 1.25;
    nodo.acciaio.ft = 3600, nodo.acciaio.ft40 = 3400, nodo.acciaio.fy = 2350;
    nodo.acciaio.fy40 = 2150, nodo.acciaio.gM = 1.05, nodo.Esposizione = 1;
  }
};

}  // namespace qf17::prova
