#include "importazione/nodo_modello.h"

#include <cmath>

#include "librerie/numeri.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {
namespace {

constexpr double kPi = 3.14159265358979;

}  // namespace

std::optional<std::vector<std::int16_t>> LeggiElenco(std::string_view testo, Piattaforma& p) {
  std::vector<std::int16_t> numeri;
  auto errore = [&p] {
    p.Messaggio("Inserimento dati errato", "ERRORE", Icona::Critica, Pulsanti::Ok);
    return std::nullopt;
  };
  for (char c : testo) {
    if (!(c >= '0' && c <= '9') && c != ',' && c != '-' && c != ' ') return errore();
  }
  std::size_t i = 0;
  while (i <= testo.size()) {
    const std::size_t fine = std::min(testo.find(',', i), testo.size());
    const std::string voce = RimuoviSpazi(testo.substr(i, fine - i));
    i = fine + 1;
    if (voce.empty()) continue;
    const std::size_t trattino = voce.find('-');
    if (trattino == std::string::npos) {
      numeri.push_back(InI16(NumeroIniziale(voce)));
      continue;
    }
    const int da = InI16(NumeroIniziale(voce.substr(0, trattino)));
    const int a = InI16(NumeroIniziale(voce.substr(trattino + 1)));
    if (trattino == 0 || trattino + 1 == voce.size() || a < da) return errore();
    for (int n = da; n <= a; ++n) numeri.push_back(static_cast<std::int16_t>(n));
  }
  return numeri;
}

std::optional<std::vector<AstaDelNodo>> LeggiAsteDelNodo(const StrutturaModello& s, int nodo,
                                                         Piattaforma& p) {
  const NodoModello* trovato = nullptr;
  for (const NodoModello& n : s.nodi) {
    if (n.numero == nodo) {
      trovato = &n;
      break;
    }
  }
  const auto punto = [&s](int indice) {
    return indice >= 0 && indice < static_cast<int>(s.punti.size())
               ? std::optional(s.punti[static_cast<std::size_t>(indice)])
               : std::nullopt;
  };
  if (trovato == nullptr || !punto(trovato->punto)) {
    p.Messaggio("Errore: nodo inesistente", "ERRORE", Icona::Critica, Pulsanti::Ok);
    return std::nullopt;
  }
  const int P = trovato->punto;
  std::vector<AstaDelNodo> aste;
  for (const AstaModello& a : s.aste) {
    if (a.nome < 1 || (a.punto1 != P && a.punto2 != P)) continue;
    const auto lontano = punto(a.punto1 == P ? a.punto2 : a.punto1);
    if (!lontano) continue;
    aste.push_back({a.nome, a.sezione, *punto(P), *lontano});
  }
  return aste;
}

SezioneModello NomeSezioneModello(std::string_view nome) {
  std::string n = RimuoviSpazi(nome);
  if (n.rfind("P_", 0) != 0) return {"Non app. " + n, 0, false};
  n.erase(0, 2);
  for (char& c : n) {
    if (c == '_') c = 'x';
  }
  auto inizia = [&n](std::string_view testa) { return n.rfind(testa, 0) == 0; };
  if (n.size() > 1 && n[0] == 'L' && n[1] >= '0' && n[1] <= '9') return {"LU" + n.substr(1), 0};
  if (inizia("LI")) return {"LD" + n.substr(2), 0};
  if (inizia("LDI")) return {"LD" + n.substr(3), 1};
  if (inizia("LDO")) return {"LU" + n.substr(3), 2};
  if (inizia("LD")) return {"LU" + n.substr(2), 1};
  return {n, 0};
}

std::string RimuoviSpazi(std::string_view testo) {
  std::string s;
  for (char c : testo) {
    if (c != ' ') s += c;
  }
  return s;
}

double ArrotondaDecimo(double x) {
  return std::floor(10 * x + 0.5) / 10;
}

double AngoloModello(const PuntoModello& a, const PuntoModello& b) {
  const double dx = b.x - a.x, dy = b.y - a.y, dz = b.z - a.z;
  const double L = std::sqrt(dx * dx + dy * dy + dz * dz);
  double angolo = 0;
  if (L > 0.0001) {
    const double c = dz / L;
    if (std::abs(c - 1) < 0.0001) {
      angolo = 0;
    } else if (std::abs(c + 1) < 0.0001) {
      angolo = kPi;
    } else {
      angolo = std::atan(-c / std::sqrt(1 - c * c)) + 2 * std::atan(1.0);
    }
    if (std::abs(dx) > 0.0001) {
      angolo *= dx > 0 ? 1 : -1;
    } else if (std::abs(dy) > 0.0001) {
      angolo *= dy > 0 ? 1 : -1;
    }
  }
  double gradi = ArrotondaDecimo(angolo / kPi * 180) - 90;
  if (gradi > 180) gradi -= 360;
  if (gradi < -180) gradi += 360;
  if (std::abs(gradi) == 180) gradi = 0;
  return gradi;
}

}  // namespace qf17
