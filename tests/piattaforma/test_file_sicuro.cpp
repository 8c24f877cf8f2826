#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "nodo/tabella.h"
#include "piattaforma/file_sicuro.h"
#include "supporto/cartella_prova.h"
#include "verifica/relazioni/testo_relazione.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;
using prova::CartellaProva;
using prova::LeggiTutto;

// Any file beside the target whose name begins with the target's: a temporary of its writer.
bool TemporaneoRimasto(const fs::path& file) {
  std::error_code ec;
  for (const auto& voce : fs::directory_iterator(file.parent_path(), ec)) {
    const std::string nome = voce.path().filename().string();
    if (nome != file.filename().string() && nome.rfind(file.filename().string(), 0) == 0) {
      return true;
    }
  }
  return false;
}

TEST(FileSicuro, PezziConfermati) {
  CartellaProva cartella;
  const fs::path file = cartella.Scrivi("rel.txt", "vecchia relazione");
  {
    FileSicuro f(file);
    f.Scrivi("prima ");
    f.Scrivi("");
    f.Scrivi("seconda\r\n");
    // Until it is confirmed, the old file is what the user has.
    EXPECT_EQ(LeggiTutto(file), "vecchia relazione");
    EXPECT_TRUE(TemporaneoRimasto(file));
    EXPECT_TRUE(f.Conferma());
  }
  EXPECT_EQ(LeggiTutto(file), "prima seconda\r\n");
  EXPECT_FALSE(TemporaneoRimasto(file));
}

// A report that stops half-way (an error thrown while it is written) leaves the old file whole
// and no temporary behind.
TEST(FileSicuro, AbbandonatoAMeta) {
  CartellaProva cartella;
  const fs::path file = cartella.Scrivi("rel.txt", "vecchia relazione");
  try {
    FileSicuro f(file);
    f.Scrivi("mezza rel");
    throw std::runtime_error("interrotta");
  } catch (const std::runtime_error&) {
  }
  EXPECT_EQ(LeggiTutto(file), "vecchia relazione");
  EXPECT_FALSE(TemporaneoRimasto(file));
}

TEST(FileSicuro, DestinazioneImpossibile) {
  CartellaProva cartella;
  const fs::path cartellaConNome = cartella.percorso() / "rel.txt";
  fs::create_directory(cartellaConNome);
  const fs::path casi[] = {cartella.percorso() / "manca" / "rel.txt", cartellaConNome};
  for (const fs::path& file : casi) {
    FileSicuro f(file);
    f.Scrivi("testo");
    EXPECT_FALSE(f.Conferma()) << file;
    EXPECT_FALSE(TemporaneoRimasto(file)) << file;
  }
  EXPECT_TRUE(fs::is_directory(cartellaConNome));
  EXPECT_FALSE(fs::exists(cartella.percorso() / "manca"));
}

// Two writers of one file at once (two runs writing the same report) each have a temporary of
// their own: the file ends as one writer's whole text, never a mix, and nothing stays beside it.
TEST(FileSicuro, DueScrittoriDelloStessoFile) {
  CartellaProva cartella;
  const fs::path file = cartella.percorso() / "rel.txt";
  FileSicuro primo(file);
  FileSicuro secondo(file);
  for (int i = 0; i < 1000; ++i) {
    primo.Scrivi("primo ");
    secondo.Scrivi("II ");
  }
  ASSERT_TRUE(primo.Conferma());
  EXPECT_EQ(LeggiTutto(file).size(), 6000u);
  ASSERT_TRUE(secondo.Conferma());
  std::string atteso;
  for (int i = 0; i < 1000; ++i) atteso += "II ";
  EXPECT_EQ(LeggiTutto(file), atteso);
  EXPECT_FALSE(TemporaneoRimasto(file));
}

// Poured into its file a block at a time, a report has the very bytes it has when kept whole,
// whatever the lines' lengths against the block.
TEST(TestoRelazione, VersatoABlocchiComeIntero) {
  CartellaProva cartella;
  const fs::path file = cartella.percorso() / "rel.txt";
  TestoRelazione intero(0);
  FileSicuro f(file);
  TestoRelazione versato(f, 64);
  for (int i = 0; i < 500; ++i) {
    const std::string riga(static_cast<std::size_t>(i % 150), static_cast<char>('a' + i % 26));
    for (TestoRelazione* r : {&intero, &versato}) {
      *r << riga << kTab << Numero{i * 0.25} << kFine;
    }
  }
  versato << "coda senza fine riga";
  intero << "coda senza fine riga";
  EXPECT_LT(versato.testo().size(), 64u + 160u);
  versato.Versa();
  EXPECT_TRUE(versato.testo().empty());
  ASSERT_TRUE(f.Conferma());
  EXPECT_EQ(LeggiTutto(file), intero.testo());
  EXPECT_GT(intero.testo().size(), 30000u);
}

// The result tables start at zero and a copy is a table of its own.
TEST(Tabella3, ZeriECopia) {
  Tabella3<double, 0, 3, 0, 2000, 0, 200> a;
  EXPECT_EQ(a(3, 2000, 200), 0.0);
  EXPECT_EQ(a(0, 0, 0), 0.0);
  a(2, 17, 5) = 1.5;
  Tabella3<double, 0, 3, 0, 2000, 0, 200> b = a;
  b(2, 17, 5) = 7;
  EXPECT_EQ(a(2, 17, 5), 1.5);
  EXPECT_EQ(b(2, 17, 5), 7.0);
  a = b;
  EXPECT_EQ(a(2, 17, 5), 7.0);
  EXPECT_THROW(a(4, 0, 0), ErroreFatale);
}

}  // namespace
}  // namespace qf17
