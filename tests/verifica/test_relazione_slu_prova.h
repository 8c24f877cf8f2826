#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "nodo/sessione.h"
#include "supporto/cartella_prova.h"
#include "test_relazione_ta_prova.h"
#include "verifica/relazioni/relazione_slu.h"

namespace qf17::prova {

// A node with a bolted chord and two members (C is switched off but keeps data), two load sets,
// and result tables filled as the limit-state checks would leave them. The job shows forces in N
// (x 10, one decimal) and stresses in N/cm2 (x 10, no decimals); the figures are binary exact
// so that the rounding to the job's decimals meets exact halves. Design strengths: the plate
// 2351.5625 / 1.25 = 1881.25 (18812.5 in the job's unit), over 40 mm 2152.1875 / 1.25 =
// 1721.75, the bolts 8000 / 1.25 = 6400.
class RelazioneSLUPiccola : public ::testing::Test {
 protected:
  RelazioneSLUPiccola() {
    NodoRelazionePiccolo(s, lavoro.percorso());
    p.relazione = file;
    Nodo& n = s.nodo;
    s.unita.DecForze = 1;
    n.TipoVer = 1;
    n.nBull[1] = 3;
    BulloneRelazione(n, 1, 3, 150, 25, 16);
    n.acciaio.Nome = "S 275 JR", n.acciaio.fy = 2351.5625, n.acciaio.fy40 = 2152.1875;
    n.acciaio.gM = 1.25, n.vite.Nome = "8.8", n.vite.ftViti = 8000, n.vite.gMViti = 1.25;
    RiempiRisultati();
  }

  // Resistances of a bolt, the same in every set.
  void Resistenze(int g, int k, double fv, double fb) {
    RisultatiVerifica& r = s.Risultati();
    r.FvRd(g, k) = fv;
    r.FbRd(g, k) = fb;
  }
  void Bullone(int g, int k, int j, double forza, double rapporto) {
    RisultatiVerifica& r = s.Risultati();
    r.FedBull(g, k, j) = forza;
    r.RapportoBull(g, k, j) = rapporto;
  }

  void RiempiRisultati() {
    RisultatiVerifica& r = s.Risultati();
    for (int j = 1; j <= 2; ++j) {
      for (int g = 0; g <= 3; ++g) r.OkTau(g, j) = r.OkProf(g, j) = r.OkDiff(g, j) = 1;
      r.OkCorr[j] = r.OkSotto[j] = 1;
    }
    Resistenze(1, 1, 4521.375, 3000.5);
    Resistenze(1, 2, 4521.375, 3000.5);
    Resistenze(1, 3, 4521.375, 1992.75);
    Resistenze(2, 1, 4521.375, 1500.625);
    Resistenze(0, 1, 4521.375, 4000);
    Resistenze(0, 2, 4521.375, 4000);
    Resistenze(3, 1, 10, 10);

    // Set 1: everything passes. Bolt A3's ratio 1.004 is shown 1; the bolt checks have taken its
    // group's flag down, which the report does not read.
    Bullone(1, 1, 1, 1234.125, 0.125);
    Bullone(1, 2, 1, 0, 0);
    Bullone(1, 3, 1, 2000.75, 1.004);
    r.OkTau(1, 1) = 0;
    Bullone(2, 1, 1, 500.25, 0.375);
    Bullone(0, 1, 1, 250.5, 0.0625);
    Bullone(0, 2, 1, 250.5, 0.999);
    Bullone(3, 1, 1, 99, 5.555);  // member C is off: neither shown nor rounded
    r.OkDiff(3, 1) = r.OkProf(3, 1) = 0;
    r.SigDiff(1, 1) = 100.25, r.SigDiff(2, 1) = -100.125, r.SigDiff(3, 1) = 77.77;
    r.SigSotto[1] = 50.04;
    r.SigProf(1, 1) = 1200.04, r.SigProf(2, 1) = -1300.25, r.SigProf(3, 1) = 44.44;
    r.SigProf(0, 1) = 300, r.TauCorr[1] = 100;

    // Set 2: bolt A1 (1.125, shown 1.12), bolt B1, the diffusion of A and the profile of B fail.
    Bullone(1, 1, 2, 3000.5, 1.125);
    Bullone(1, 2, 2, 0, 0);
    Bullone(1, 3, 2, 1000.25, 0.5);
    Bullone(2, 1, 2, 8000, 16.0 / 3);
    Bullone(0, 1, 2, 125.25, 0.25);
    Bullone(0, 2, 2, 375.75, 0.75);
    r.OkTau(1, 2) = r.OkTau(2, 2) = 0;
    r.SigDiff(1, 2) = 1900, r.SigDiff(2, 2) = 0.25;
    r.OkDiff(1, 2) = 0;
    r.SigSotto[2] = 0.75;
    r.SigProf(1, 2) = 0, r.SigProf(2, 2) = 2000;
    r.OkProf(2, 2) = 0;
    r.SigProf(0, 2) = -3, r.TauCorr[2] = 4;
  }

  // Set 2 made to pass: its failing bolts and flags put right.
  void Set2Verificato() {
    RisultatiVerifica& r = s.Risultati();
    r.RapportoBull(1, 1, 2) = 0.9;
    r.RapportoBull(2, 1, 2) = 0.9;
    r.OkDiff(1, 2) = r.OkProf(2, 2) = 1;
  }

  static constexpr const char* kSottoFallita = "     500.4|   18812.5| NO|\r\n";
  void FallisceSoloSottoDelSet1(bool fallito) {
    Set2Verificato();
    s.Risultati().OkSotto[1] = fallito ? 0 : 1;
  }

  bool Esegui() { return RelazioneSLU(s, verdetti); }
  std::string Relazione() const { return LeggiTutto(file); }

  static std::string Attesa() {
    std::string t =
        LeggiTutto(fs::path(QF17_DATI_TEST) / "verifica" / "dati" / "relazione_slu_piccola.txt");
    EXPECT_FALSE(t.empty());
    return t;
  }
  // The report's heading: the golden file up to the first load set.
  static std::string Testata() {
    std::string t = Attesa();
    return t.substr(0, t.find("Combinazione di sollecitazioni agenti "));
  }
  // The lines from `da` up to `a` (excluded) of a report text.
  static std::string Tratto(const std::string& testo, const std::string& da, const std::string& a) {
    std::size_t i = testo.find(da);
    if (i == std::string::npos) return "(manca: " + da + ")";
    std::size_t f = testo.find(a, i + da.size());
    return testo.substr(i, f == std::string::npos ? std::string::npos : f - i);
  }

  PiattaformaRelazione p;
  Sessione s{p};
  CartellaProva lavoro;
  const fs::path file = lavoro.percorso() / "RelSLU_QF17_prova.txt";
  VerdettiRelazione verdetti;
};

}  // namespace qf17::prova
