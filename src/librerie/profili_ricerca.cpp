#include <string>

#include "librerie/libreria_profili.h"
#include "librerie/token.h"

namespace qf17 {
namespace {

// The flange slope of a channel, taken as the same for every size.
constexpr double kPendenzaAlaCanale = 0.08;

void AvvisaProfiloNonTrovato(Piattaforma& piattaforma) {
  piattaforma.Messaggio("Profilo non trovato.", "RICERCA PROFILO DA NOME", Icona::Critica,
                        Pulsanti::Ok);
}

bool Contiene(const std::string& nome, std::string_view parte) {
  return nome.find(parte) != std::string::npos;
}

// The library's radii of channels and angles are replaced by ones derived from the thicknesses,
// and a channel's centroid distance from the file is dropped.
void CompletaSecondaLista(Profilo& p) {
  if (Contiene(p.Nome, "UPN")) {
    p.Tipo = static_cast<std::int16_t>(TipoProfilo::Canale);
    p.dBarY = 0;
    p.r1 = p.e;
    p.r2 = p.e / 2;
    p.eBordo = p.e - (p.b / 2 - p.r2) * kPendenzaAlaCanale;
    p.eAnima = (p.b / 2 - p.a - p.r1) * kPendenzaAlaCanale + p.e;
  } else if (Contiene(p.Nome, "LU") || Contiene(p.Nome, "LD")) {
    p.Tipo = static_cast<std::int16_t>(TipoProfilo::Angolare);
    p.r1 = p.a;
    p.r2 = p.a / 2;
  }
}

}  // namespace

void CompletaProfili(LibreriaProfili& libreria) {
  for (int i = 1; i <= libreria.NumProfili1; ++i) {
    libreria.Profili[i].Tipo = static_cast<std::int16_t>(TipoProfilo::DoppioT);
  }
  for (int i = libreria.NumProfili1 + 1; i <= libreria.NumProfiliTot; ++i) {
    CompletaSecondaLista(libreria.Profili[i]);
  }
}

int ProfiloDaNome(const LibreriaProfili& libreria, std::string_view nome,
                  Piattaforma& piattaforma) {
  for (int i = 1; i <= libreria.NumProfiliTot; ++i) {
    if (libreria.Profili[i].Nome == nome) return i;
  }
  AvvisaProfiloNonTrovato(piattaforma);
  return 0;
}

std::vector<std::int16_t> ListaCorrente(const LibreriaProfili& libreria) {
  std::vector<std::int16_t> lista;
  for (int i = 1; i <= libreria.NumProfiliTot; ++i) lista.push_back(static_cast<std::int16_t>(i));
  return lista;
}

std::vector<std::int16_t> ListaAste(const LibreriaProfili& libreria) {
  std::vector<std::int16_t> lista;
  for (int i = 1; i <= libreria.NumProfiliTot; ++i) {
    const std::string& nome = libreria.Profili[i].Nome;
    if (!nome.empty() && (nome[0] == 'L' || nome[0] == 'U')) {
      lista.push_back(static_cast<std::int16_t>(i));
    }
  }
  return lista;
}

int ProfiloInLista(const LibreriaProfili& libreria, std::string_view nome,
                   const std::vector<std::int16_t>& lista, Piattaforma& piattaforma) {
  const std::string cercato = Rifila(nome);
  for (std::size_t k = 0; k < lista.size(); ++k) {
    if (Rifila(libreria.Profili[lista[k]].Nome) == cercato) return static_cast<int>(k);
  }
  AvvisaProfiloNonTrovato(piattaforma);
  return 0;
}

}  // namespace qf17
