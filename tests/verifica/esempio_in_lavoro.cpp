#include "verifica/esempio_in_lavoro.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "disegno/file_opzioni.h"
#include "librerie/unita_lavoro.h"
#include "nodo/esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "nodo/nodo_default.h"
#include "verifica/verifica.h"

namespace qf17::prova {

namespace fs = std::filesystem;

void EsempioInLavoro::Prepara(const std::string& nodo) {
  ASSERT_TRUE(CaricaLibrerieInstallazione(s));
  const fs::path custom = fs::path(QF17_SORGENTI) / "installazione" / "custom";
  s.opzioni = OpzioniPredefinite();
  ASSERT_TRUE(LeggiOpzioni(s.opzioni, custom / "OpzioniQf7.txt"));
  fs::copy_file(CartellaEsempi() / "parametrilavoro", lavoro.percorso() / "parametrilavoro");
  s.nodo.DirLavoro = lavoro.percorso().string();
  LeggiUnitaLavoro(s);
  NodoDefault(s);

  const fs::path copia = lavoro.percorso() / (nodo + ".qf7");
  fs::copy_file(CartellaEsempi() / (nodo + ".qf7"), copia);
  ASSERT_TRUE(ApriNodoDaFile(s, copia));
  s.nodo.DirLavoro = lavoro.percorso().string();
  ASSERT_EQ(s.nodo.TipoVer, 0) << "the samples are saved for allowable stresses";
  EXPECT_TRUE(p.messaggi.empty()) << p.messaggi.front().testo;
  p.messaggi.clear();
}

std::string EsempioInLavoro::Relazione(const std::string& tag, const std::string& nodo) {
  const fs::path file = lavoro.percorso() / ("Rel" + tag + "_QF17_" + nodo + ".txt");
  fs::remove(file);
  EsitoVerifica esito = EseguiVerifica(s);
  if (esito.fine != FineVerifica::Relazione) return "";
  return LeggiTutto(file);
}

std::string PrimaDifferenza(const std::string& a, const std::string& b) {
  std::size_t riga = 1, inizio = 0;
  for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
    if (a[i] != b[i]) {
      auto fine = [&](const std::string& t) { return t.substr(inizio, t.find('\n', i) - inizio); };
      return "line " + std::to_string(riga) + ":\n  got:      " + fine(a) +
             "\n  expected: " + fine(b);
    }
    if (a[i] == '\n') ++riga, inizio = i + 1;
  }
  return "one text is a prefix of the other (" + std::to_string(a.size()) + " and " +
         std::to_string(b.size()) + " bytes)";
}

}  // namespace qf17::prova
