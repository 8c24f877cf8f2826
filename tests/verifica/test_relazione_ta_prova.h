#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"
#include "verifica/relazioni/relazione_ta.h"

namespace qf17::prova {

namespace fs = std::filesystem;

// Records, with each message, whether the report was already on disk when it came up.
class PiattaformaRelazione : public PiattaformaRegistrata {
 public:
  Risposta MostraMessaggio(const std::string& testo, const std::string& titolo, Icona icona,
                           Pulsanti pulsanti) override {
    fileAlMessaggio.push_back(fs::exists(relazione));
    return PiattaformaRegistrata::MostraMessaggio(testo, titolo, icona, pulsanti);
  }
  fs::path relazione;
  std::vector<bool> fileAlMessaggio;
};

// The close of a report whose node failed, the same for both methods: the message comes up
// before the report is complete, then the viewer is started on the report without waiting.
inline void ControllaChiusuraNonVerificato(const PiattaformaRelazione& p, const fs::path& file) {
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "ATTENZIONE: nodo non verificato!");
  EXPECT_EQ(p.messaggi[0].titolo, "QF17 - NODO DI TRAVATURA RETICOLARE");
  EXPECT_EQ(p.messaggi[0].icona, Icona::Attenzione);
  EXPECT_EQ(p.messaggi[0].pulsanti, Pulsanti::Ok);
  EXPECT_FALSE(p.fileAlMessaggio[0]) << "the message comes before the report is complete";

  ASSERT_EQ(p.viste.size(), 1u);
  EXPECT_EQ(p.viste[0], std::pair(Vista::Relazione, file.string()));
}

inline Profilo ProfiloRelazione(const std::string& nome, std::int16_t tipo, double h, double b,
                                double a, double e) {
  Profilo p;
  p.Nome = nome, p.Tipo = tipo, p.h = h, p.b = b, p.a = a, p.e = e;
  return p;
}

inline void BulloneRelazione(Nodo& n, int g, int k, double x, double y, double d) {
  n.xBull(g, k) = x;
  n.yBull(g, k) = y;
  n.FiBull(g, k) = d;
}

// The node both reports' small tests start from: a bolted chord and two members (C is switched
// off but keeps data), two load sets; the job shows forces in N (x 10) and stresses in N/cm2
// (x 10, no decimals), so that the reports' whole-unit rounding meets exact halves.
inline void NodoRelazionePiccolo(Sessione& s, const fs::path& cartella) {
  Nodo& n = s.nodo;
  n.DirLavoro = cartella.string();
  n.NomeFileNodo = " prova ";
  s.unita.UniForze = "N", s.unita.FatForze = 10, s.unita.UniTensioni = "N/cm2";
  s.unita.FatTensioni = 10, s.unita.DecTensioni = 0;
  n.NumNodi = 2;
  n.NomeNodi[1] = 12;
  n.NomeNodi[2] = 7;

  n.Corrente = ProfiloRelazione("UPN  200", 0, 200, 75, 8.5, 11.5);
  n.Cor_teta = GradiInRadianti(-10), n.Aste[1] = ProfiloRelazione("LU80x8", 1, 80, 80, 8, 8);
  n.Aste[2] = ProfiloRelazione("LU60x6", 1, 60, 60, 6, 6);
  n.Aste[3] = ProfiloRelazione("LU50x5", 1, 50, 50, 5, 5);
  n.Ast_flag[1] = 1, n.Ast_flag[2] = 1, n.Ast_flag[3] = 0;
  n.Ast_modo[1] = 1, n.Ast_modo[2] = 0, n.Ast_modo[3] = 2;
  n.Ast_teta[1] = GradiInRadianti(45);
  n.Ast_teta[2] = GradiInRadianti(120.256);  // the box shows 120.26
  n.Ast_teta[3] = GradiInRadianti(150);
  n.Ast_coeff[1] = 0.9, n.Ast_coeff[2] = 1, n.Ast_coeff[3] = 1;
  n.Fz_a = 100, n.Fz_b = 50, n.Fz_c = 50, n.Fz_d = 100;  // length 300
  n.Fz_e = 120, n.Fz_f = 80, n.Fz_g = 90, n.Fz_h = 100;  // width max(200, 190)
  n.Fz_s = 10;

  n.nBull[0] = 2, n.nBull[1] = 2, n.nBull[2] = 1, n.nBull[3] = 1;
  BulloneRelazione(n, 0, 1, 50, 40, 16);
  BulloneRelazione(n, 0, 2, 250, 40, 16);
  BulloneRelazione(n, 1, 1, 30, 25, 16);
  BulloneRelazione(n, 1, 2, 90, 25, 16);
  BulloneRelazione(n, 2, 1, 40, 30.5, 20);
  BulloneRelazione(n, 3, 1, 20, 20, 12);

  n.nSollAg = 2;
  n.NomeSa[1] = "Vento\r\nsx";
  n.NomeSa[2] = "Neve\rpiena\n";
  n.SforzoNormale(1, 1) = 1234.5, n.SforzoNormale(2, 1) = -2000.25;
  n.SforzoNormale(1, 2) = 0, n.SforzoNormale(2, 2) = 500;
  n.SforzoNormale(3, 1) = 999, n.SforzoNormale(3, 2) = 999;
}

// A node with a bolted chord and two members (C is switched off but keeps data), two load sets
// (the second of case II), and result tables as the checks would leave them. The job shows
// forces in N (x 10) and stresses in N/cm2 (x 10, no decimals), so that the report's whole-unit
// rounding meets exact halves.
class RelazioneTAPiccola : public ::testing::Test {
 protected:
  RelazioneTAPiccola() {
    NodoRelazionePiccolo(s, lavoro.percorso());
    p.relazione = file;
    Nodo& n = s.nodo;
    n.acciaio.Nome = "S 235 (FE 360)", n.acciaio.SAmm = 1600.25, n.acciaio.SAmm40 = 1400.75;
    n.vite.Nome = "8.8", n.vite.SAmmViti = 2720.25, n.vite.TauAmmViti = 1500.75;
    n.CasoCarico[1] = 0, n.CasoCarico[2] = 1;
    RiempiRisultati();
  }

  void RiempiRisultati() {
    RisultatiVerifica& r = s.Risultati();
    for (int j = 1; j <= 2; ++j) {
      for (int g = 0; g <= 3; ++g) r.OkTau(g, j) = r.OkRif(g, j) = r.OkProf(g, j) = 1;
      for (int g = 0; g <= 3; ++g) r.OkDiff(g, j) = 1;
      r.OkCorr[j] = r.OkSotto[j] = 1;
    }
    // Set 1, limits 1600.25 (gusset, profiles) and 1500.75 (bolts): everything passes.
    r.SigDiff(1, 1) = 100.25, r.SigDiff(2, 1) = -100.25, r.SigDiff(3, 1) = 77.77;
    r.SigSotto[1] = 50.04;
    r.RifBull(1, 1, 1) = 1234.25, r.RifBull(1, 2, 1) = 1234.75;
    r.RifBull(2, 1, 1) = 1234.25;
    r.RifBull(0, 1, 1) = -300, r.RifBull(0, 2, 1) = -200.5;
    r.TauBull(1, 1, 1) = 700.25, r.TauBull(1, 2, 1) = 650.75;
    r.TauBull(2, 1, 1) = 1500.75;  // equal to the limit: passes
    r.TauBull(0, 1, 1) = 0, r.TauBull(0, 2, 1) = -10.25;
    r.TauBull(3, 1, 1) = 33.33;
    r.SigProf(1, 1) = 1200.04, r.SigProf(2, 1) = -1300.25, r.SigProf(3, 1) = 44.44;
    r.SigProf(0, 1) = 300, r.TauCorr[1] = 100;
    // The absent member's flags are not the report's business.
    r.OkDiff(3, 1) = 0, r.OkTau(3, 1) = 0;
    // Set 2, case II (gusset limit 1800.28125, bolt shear limit 1500.75).
    r.SigDiff(1, 2) = 1900, r.SigDiff(2, 2) = 0.25;
    r.OkDiff(1, 2) = 0;
    r.SigSotto[2] = 0.75;
    r.RifBull(1, 1, 2) = 10, r.RifBull(1, 2, 2) = 20;
    r.RifBull(2, 1, 2) = 4000;  // over 2.0 x 1800.28
    r.OkRif(2, 2) = 0;
    r.RifBull(0, 1, 2) = 5, r.RifBull(0, 2, 2) = 2.25;
    r.TauBull(1, 1, 2) = 1600, r.TauBull(1, 2, 2) = 1400;
    r.OkTau(1, 2) = 0;
    r.TauBull(2, 1, 2) = 10;
    r.TauBull(0, 1, 2) = 1, r.TauBull(0, 2, 2) = 2;
    r.SigProf(1, 2) = 0, r.SigProf(2, 2) = 500;
    r.SigProf(0, 2) = -3, r.TauCorr[2] = 4;
  }

  bool Esegui() { return RelazioneTA(s, verdetti); }
  std::string Relazione() const { return LeggiTutto(file); }

  static std::string Attesa() {
    std::string t =
        LeggiTutto(fs::path(QF17_DATI_TEST) / "verifica" / "dati" / "relazione_ta_piccola.txt");
    EXPECT_FALSE(t.empty());
    return t;
  }
  // The report's heading: the golden file up to the first load set.
  static std::string Testata() {
    std::string t = Attesa();
    return t.substr(0, t.find("\r\nCombinazione di sollecitazioni agenti "));
  }

  // The failure line of the section under the chord in set 1.
  static constexpr const char* kSottoFallita = "fazzoletto:  500\r\n\tTensione NON VERIFICATA\r\n";
  void FallisceSoloSottoDelSet1(bool fallito) {
    RisultatiVerifica& r = s.Risultati();
    r.OkDiff(1, 2) = r.OkRif(2, 2) = r.OkTau(1, 2) = 1;
    r.OkSotto[1] = fallito ? 0 : 1;
  }

  PiattaformaRelazione p;
  Sessione s{p};
  CartellaProva lavoro;
  const fs::path file = lavoro.percorso() / "RelTA_QF17_prova.txt";
  VerdettiRelazione verdetti;
};

}  // namespace qf17::prova
