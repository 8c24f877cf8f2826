#include "librerie/formatta.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "librerie/conversioni_unita.h"
#include "librerie/numeri.h"
#include "librerie/token.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

constexpr const char* kTitolo = "QF17";
constexpr std::size_t kNo = std::string::npos;
// The numbers of the commands have at most three digits, which also bounds every field and
// every run of filling characters a command string can ask for.
constexpr int kMassimoNumero = 999;

// Position of a lower-case command prefix in a command string written in any case.
std::size_t Trova(std::string_view comandi, std::string_view prefisso) {
  if (prefisso.size() > comandi.size()) return kNo;
  auto basso = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  for (std::size_t i = 0; i + prefisso.size() <= comandi.size(); ++i) {
    std::size_t k = 0;
    while (k < prefisso.size() && basso(comandi[i + k]) == prefisso[k]) ++k;
    if (k == prefisso.size()) return i;
  }
  return kNo;
}

// The number behind a command's four-character prefix, read the permissive way from at most
// three characters, so that "(fd_8)" and "(cd_002)" both read.
int NumeroComando(std::string_view comandi, std::size_t inizio) {
  double n = ArrotondaPari(NumeroIniziale(comandi.substr(inizio + 4, 3)));
  return static_cast<int>(std::clamp<double>(n, -kMassimoNumero, kMassimoNumero));
}

std::string Errore(Piattaforma& piattaforma, const std::string& testo) {
  piattaforma.Messaggio(testo, kTitolo, Icona::Critica, Pulsanti::Ok);
  return "";
}

std::nullopt_t Rifiuta(Piattaforma& piattaforma, const std::string& testo) {
  Errore(piattaforma, testo);
  return std::nullopt;
}

// The decimals a scale takes away: one more from each decade, counted from a scale of 5 on.
int SpostamentoScala(double scala) {
  if (!(std::fabs(scala) > 0.0001)) return 0;
  double s = -ArrotondaPari(std::log10(std::fabs(scala)) - 0.19897);
  return static_cast<int>(std::clamp<double>(s, -kMassimoNumero, kMassimoNumero));
}

// Half to even at `decimali` decimals; a value with no digits left at that place stays as it is.
double ArrotondaDecimali(double x, int decimali) {
  if (!std::isfinite(x) || decimali > 300) return x;
  if (std::fabs(x) * std::pow(10.0, decimali) >= 4503599627370496.0) return x;
  return ArrotondaPari(x, decimali);
}

std::string Fisso(double x, int decimali) {
  std::string buffer(static_cast<std::size_t>(decimali) + 400, '\0');
  auto [fine, errore] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), x,
                                      std::chars_format::fixed, decimali);
  if (errore != std::errc()) return TestoNumero(x);
  return std::string(buffer.data(), fine);
}

// The digits of |r| to `decimali` places, trailing zeros of the decimals left out. A value that
// was just rounded to at most six places below 1E+9 lies closer to its shortest text than half
// a unit of the last place, so that text is already the answer, without a second conversion.
std::string CifreFisse(double assoluto, int decimali) {
  if (decimali <= 6 && assoluto < 1e9) {
    std::string breve = TestoNumero(assoluto);
    if (breve.find('E') == kNo) {
      const std::size_t p = breve.find('.');
      if (p == kNo || breve.size() - p - 1 <= static_cast<std::size_t>(decimali)) return breve;
    }
  }
  return Fisso(assoluto, decimali);
}

// The runtime's digit places "###" or "###.##": every digit of the integer part but no lone
// zero before the point, the decimals without trailing zeros, the point kept when asked for.
std::string PostiCifra(double x, bool punto, int decimali) {
  if (!std::isfinite(x)) return TestoNumero(x);
  if (!punto) decimali = 0;
  const double r = ArrotondaDecimali(x, decimali);
  std::string cifre = CifreFisse(std::fabs(r), decimali);
  std::size_t p = cifre.find('.');
  std::string intero = cifre.substr(0, p);
  std::string decimi = p == kNo ? std::string() : cifre.substr(p + 1);
  while (!decimi.empty() && decimi.back() == '0') decimi.pop_back();
  if (intero == "0") intero.clear();
  std::string t = r < 0 ? "-" : "";
  t += intero;
  if (punto) t += "." + decimi;
  return t;
}

// The runtime's exponent form "###.E-0": `cifre` digits before the point, none after, and the
// exponent with a sign only when negative.
std::string Esponenziale(double x, int cifre) {
  if (!std::isfinite(x)) return TestoNumero(x);
  if (x == 0) return std::string(static_cast<std::size_t>(cifre), '0') + ".E0";
  std::string buffer(static_cast<std::size_t>(cifre) + 40, '\0');
  auto [fine, errore] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(x),
                                      std::chars_format::scientific, cifre - 1);
  if (errore != std::errc()) return TestoNumero(x);
  std::string testo(buffer.data(), fine);
  std::size_t e = testo.find('e');
  std::string mantissa = testo.substr(0, e);
  mantissa.erase(std::remove(mantissa.begin(), mantissa.end(), '.'), mantissa.end());
  int esponente = 0;
  const char* da = testo.data() + e + 1;
  if (*da == '+') ++da;
  std::from_chars(da, testo.data() + testo.size(), esponente);
  esponente -= cifre - 1;
  return (x < 0 ? "-" : "") + mantissa + ".E" + std::to_string(esponente);
}

// One place to the right: a blank in front, the last character dropped.
std::string SpostaADestra(const std::string& t) {
  std::size_t n = t.size();
  while (n > 0 && (static_cast<unsigned char>(t[n - 1]) & 0xC0) == 0x80) --n;
  if (n > 0) --n;
  std::string spostato(1, ' ');
  spostato.append(t, 0, n);
  return spostato;
}

std::string Stelle(int larghezza, std::string_view comandi) {
  std::string t(static_cast<std::size_t>(larghezza), '*');
  AggiungiSuffisso(t, comandi);
  return t;
}

std::string Blanchi(std::size_t da, int fino) {
  return da < static_cast<std::size_t>(fino) ? std::string(fino - da, ' ') : std::string();
}

// Fits a plain number text into `w` characters; false when only stars are left.
bool AdattaPiano(std::string& t, double x, int punto, int w, const std::string& riempi,
                 bool& esponente) {
  const std::size_t n = NumeroCaratteri(t);
  const auto larghezza = static_cast<std::size_t>(w);
  if (n < larghezza) {
    t = Blanchi(n, w) + t;
  } else if (n > larghezza) {
    if (punto - 1 == w) {
      t = PostiCifra(x, false, 0);
    } else if (punto - 1 > w) {
      if (w < 4) return false;
      t = Esponenziale(x, w - 3);
      esponente = true;
    } else {
      t = PostiCifra(x, true, w - punto);
      for (std::size_t k = NumeroCaratteri(t); k < larghezza; ++k) t += riempi;
    }
  }
  return true;
}

// Fits an exponent text into `w` characters by dropping digits of the mantissa.
bool AdattaEsponente(std::string& t, double x, int w) {
  const auto larghezza = static_cast<std::size_t>(w);
  for (int k = w - 3; k >= 1; --k) {
    t = Esponenziale(x, k);
    const std::size_t n = NumeroCaratteri(t);
    if (n == larghezza) break;
    if (n < larghezza) {
      t = Blanchi(n, w) + t;
      break;
    }
  }
  return NumeroCaratteri(t) == larghezza;
}

// The value and the command string after the steps that change the value: conversion,
// significant digits and decimals, with "(dv_nn)" turned into the "(cd_nnn)" it stands for.
struct Preparato {
  double x = 0;
  std::string comandi;
  int decimali = 10;
  bool conCd = false;
};

std::optional<Preparato> Prepara(double x, std::string_view comandi, double scala,
                                 Piattaforma& piattaforma) {
  Preparato r{x, std::string(comandi)};
  int spostamento = SpostamentoScala(scala);
  if (Trova(comandi, "(cu_") != kNo && !ConvertiUnita(r.x, comandi, spostamento, piattaforma)) {
    return std::nullopt;
  }
  if (auto p = Trova(r.comandi, "(cs_"); p != kNo) {
    int n = NumeroComando(r.comandi, p);
    if (n < 1) return Rifiuta(piattaforma, "comando (cs_nn) errato.");
    r.x = CifreSignificative(r.x, n);
  }
  if (auto p = Trova(r.comandi, "(dv_"); p != kNo) {
    int n = NumeroComando(r.comandi, p);
    if (n < 0) return Rifiuta(piattaforma, "comando (dv_nn) errato (2).");
    int d = std::max(0, n + spostamento);
    if (d >= 100) return Rifiuta(piattaforma, "comando (dv_nn) errato (1).");
    std::size_t fine = r.comandi.find(')', p);
    fine = fine == kNo ? r.comandi.size() : fine + 1;
    std::string tre = std::to_string(d);
    r.comandi.replace(p, fine - p, "(cd_" + std::string(3 - tre.size(), '0') + tre + ")");
  }
  if (auto p = Trova(r.comandi, "(cd_"); p != kNo) {
    r.conCd = true;
    r.decimali = NumeroComando(r.comandi, p);
    if (r.decimali < 0) return Rifiuta(piattaforma, "comando (cd_nn) errato.");
    r.x = ArrotondaDecimali(r.x, r.decimali);
  }
  return r;
}

// PostiCifra's text ("12.5", ".25", "3." with the point, "1234" without), written at `c`; 0 when
// the rounded value has no short text of at most `decimali` places, which leaves it to PostiCifra.
std::size_t PostiCifraBrevi(double x, bool punto, int decimali, char* c) {
  if (!punto) decimali = 0;
  const double r = ArrotondaDecimali(x, decimali);
  char cifre[kCifreBrevi];
  std::size_t n = 0;
  if (r != 0) {
    n = CifreBrevi(std::fabs(r), cifre);
    if (n == 0) return 0;
  }
  std::string_view t(cifre, n);
  const std::size_t p = t.find('.');
  std::string_view intero = t.substr(0, p);
  std::string_view decimi = p == kNo ? std::string_view() : t.substr(p + 1);
  if (decimi.size() > static_cast<std::size_t>(decimali)) return 0;
  if (intero == "0") intero = {};
  std::size_t k = 0;
  if (r < 0) c[k++] = '-';
  intero.copy(c + k, intero.size());
  k += intero.size();
  if (!punto) return k;
  c[k++] = '.';
  decimi.copy(c + k, decimi.size());
  return k + decimi.size();
}

// The column cell of a number: what Formatta gives for "(FD_ww)" or "(FS_ww)", "(SC_|)" with
// the separator and "(NP_1)" for an integer, at scale 1, taken straight through its steps
// (no conversion, digits or decimals apply), since reports ask for millions of cells.
std::string CellaNumero(double x, int w, bool destra, bool separatore, bool senzaPunto) {
  if (w + 1 <= static_cast<int>(kCellaBreve)) {
    char cella[kCellaBreve];
    const std::size_t n = CellaNumeroBreve(x, w, destra, separatore, senzaPunto, cella);
    if (n > 0) return std::string(cella, n);
  }
  std::string t = TestoNumero(x);
  bool esponente = t.find_first_of("eE") != kNo;
  int punto = 0;
  if (!esponente) punto = PuntoDecimale(t);
  // A plain text may turn into the exponent form and then be fitted as one, as in Formatta.
  if ((!esponente && !AdattaPiano(t, x, punto, w, " ", esponente)) ||
      (esponente && !AdattaEsponente(t, x, w))) {
    t.assign(static_cast<std::size_t>(w), '*');
    if (separatore) t += '|';
    return t;
  }
  if (!destra) {
    t = Rifila(t);
    t += Blanchi(NumeroCaratteri(t), w);
  }
  if (senzaPunto) {
    const std::size_t ultimo = t.find_last_not_of(" \t");
    if (ultimo != kNo && t[ultimo] == '.') {
      t[t.rfind('.')] = ' ';
      if (destra) t = SpostaADestra(t);
    }
  }
  if (separatore) t += '|';
  return t;
}

}  // namespace

// The cells a report is made of: a number with a short text, that fits its width or fits by
// fewer decimals. The same text as the steps of CellaNumero, without a string in between.
std::size_t CellaNumeroBreve(double x, int w, bool destra, bool separatore, bool senzaPunto,
                             char* cella) {
  if (w < 2 || w + 1 > static_cast<int>(kCellaBreve)) return 0;
  const auto larghezza = static_cast<std::size_t>(w);
  char t[kCellaBreve];
  std::size_t n = 1;
  if (x == 0) {
    t[0] = '0';
  } else if (n = CifreBrevi(x, t); n == 0) {
    return 0;
  }
  const char* punto = static_cast<const char*>(std::memchr(t, '.', n));
  if (punto == nullptr) t[n++] = '.';
  std::size_t k = 0;
  if (n <= larghezza) {
    // Padded on its side, the closing point of an integer dropped.
    const std::size_t cifre = senzaPunto && t[n - 1] == '.' ? n - 1 : n;
    if (destra) k = larghezza - cifre;
    std::memset(cella, ' ', larghezza);
    std::memcpy(cella + k, t, cifre);
    k = larghezza;
  } else {
    // Too long: as many decimals as the width leaves, the digits left-aligned in the cell as
    // Formatta fills them, whatever the side.
    const auto interi = static_cast<std::size_t>((punto == nullptr ? t + n - 1 : punto) - t);
    if (interi > larghezza) return 0;
    if (interi == larghezza) {
      // Exactly the integer's places: rounded to a whole number, without the point.
      k = PostiCifraBrevi(x, false, 0, cella);
      if (k != larghezza) return 0;
      if (separatore) cella[k++] = '|';
      return k;
    }
    k = PostiCifraBrevi(x, true, w - static_cast<int>(interi) - 1, cella);
    if (k == 0 || k > larghezza) return 0;
    std::memset(cella + k, ' ', larghezza - k);
    if (senzaPunto && cella[k - 1] == '.') {
      cella[k - 1] = ' ';
      if (destra) {
        std::memmove(cella + 1, cella, larghezza - 1);
        cella[0] = ' ';
      }
    }
    k = larghezza;
  }
  if (separatore) cella[k++] = '|';
  return k;
}

std::string Formatta(double valore, std::string_view comandi, double& scala,
                     Piattaforma& piattaforma) {
  if (comandi.empty()) return TestoNumero(valore * scala);
  auto lavoro = Prepara(valore * scala, comandi, scala, piattaforma);
  if (!lavoro) return "";
  const double x = lavoro->x;
  const std::string& c = lavoro->comandi;

  std::string t = TestoNumero(x);
  bool esponente = t.find_first_of("eE") != kNo;
  int punto = 0;
  std::string riempi = " ";
  if (!esponente) {
    punto = PuntoDecimale(t);
    if (lavoro->conCd) {
      if (auto z = Trova(c, "(zr_"); z != kNo && z + 4 < c.size()) {
        riempi = PrimiCaratteri(std::string_view(c).substr(z + 4), 1);
      }
      for (int k = static_cast<int>(t.size()) - punto; k < lavoro->decimali; ++k) t += riempi;
    }
  }

  const std::size_t fd = Trova(c, "(fd_");
  const std::size_t fs = Trova(c, "(fs_");
  if (fd != kNo || fs != kNo) {
    const int w = NumeroComando(c, fd != kNo ? fd : fs);
    if (w < 2) return Errore(piattaforma, "comando (fd_nn) o (fs_nn) errato.");
    if (!esponente && !AdattaPiano(t, x, punto, w, riempi, esponente)) return Stelle(w, comandi);
    if (esponente && !AdattaEsponente(t, x, w)) return Stelle(w, comandi);
    if (fs != kNo) {
      t = Rifila(t);
      t += Blanchi(NumeroCaratteri(t), w);
    }
  }

  if (Trova(c, "(np_1)") != kNo) {
    const std::string rifilato = Rifila(t);
    if (!rifilato.empty() && rifilato.back() == '.') {
      t[t.rfind('.')] = ' ';
      // Without fixed decimals the number moves right by the point's place.
      if (fd != kNo && !lavoro->conCd) t = SpostaADestra(t);
    }
  }
  if (fd == kNo && fs == kNo) t = Rifila(t);
  AggiungiSuffisso(t, comandi);
  return t;
}

bool ConvertiUnita(double& valore, std::string_view comandi, int& spostamento,
                   Piattaforma& piattaforma) {
  static const std::vector<std::string> chiavi = [] {
    std::vector<std::string> c;
    for (const auto& riga : TabellaConversioni())
      c.push_back("(cu_" + Minuscolo(riga.chiave) + ")");
    return c;
  }();
  const std::string c = Minuscolo(comandi);
  const auto tabella = TabellaConversioni();
  for (std::size_t i = 0; i < tabella.size(); ++i) {
    if (c.find(chiavi[i]) != kNo) {
      valore *= tabella[i].fattore;
      spostamento = tabella[i].spostamento;
      return true;
    }
  }
  spostamento = 0;
  const std::size_t inizio = c.find("(cu_");
  if (inizio == kNo) return true;
  const std::size_t chiusa = c.find(')', inizio);
  const std::size_t lunghezza = (chiusa == kNo ? c.size() : chiusa + 1) - inizio;
  // A bare "(cu_" closing the string asks for nothing.
  if (lunghezza <= 4) return true;
  piattaforma.Messaggio("Stringa di conversione unità di misura non riconosciuta.", kTitolo,
                        Icona::Critica, Pulsanti::Ok);
  return false;
}

double CifreSignificative(double valore, int cifre) {
  if (!std::isfinite(valore) || valore == 0 || cifre < 1 || cifre >= 17) return valore;
  char buffer[64];
  auto [fine, errore] = std::to_chars(buffer, buffer + sizeof buffer, valore,
                                      std::chars_format::scientific, cifre - 1);
  if (errore != std::errc()) return valore;
  double letto = valore;
  auto [resto, esito] = std::from_chars(buffer, fine, letto);
  (void)resto;
  return esito == std::errc() ? letto : valore;
}

int PuntoDecimale(std::string& testo) {
  if (testo.find_first_of("eE") != kNo) return -1;
  std::size_t p = testo.find('.');
  if (p == kNo) {
    testo += '.';
    return static_cast<int>(testo.size());
  }
  return static_cast<int>(p) + 1;
}

void AggiungiSuffisso(std::string& testo, std::string_view comandi) {
  const std::size_t p = Trova(comandi, "(sc_");
  if (p == kNo) return;
  const std::size_t inizio = p + 4;
  const std::size_t fine = comandi.find(')', inizio);
  testo += comandi.substr(inizio, fine == kNo ? kNo : fine - inizio);
}

int UltimaPosizione(std::string_view testo, std::string_view cercato) {
  if (cercato.empty()) return 0;
  const std::size_t p = testo.rfind(cercato);
  if (p == kNo) return 0;
  return static_cast<int>(NumeroCaratteri(testo.substr(0, p))) + 1;
}

std::string FormatoColonna(const ValoreColonna& valore, int larghezza, bool separatore,
                           std::string_view allineamento, Piattaforma& piattaforma) {
  const bool destra = allineamento == "R";
  if (const auto* testo = std::get_if<std::string>(&valore)) {
    const auto w = static_cast<std::size_t>(std::max(0, larghezza));
    std::string t = Rifila(*testo);
    const std::size_t n = NumeroCaratteri(t);
    if (n > w) t = PrimiCaratteri(t, w);
    if (n < w) t = destra ? std::string(w - n, ' ') + t : t + std::string(w - n, ' ');
    if (separatore) t += "|";
    return t;
  }
  const auto* intero = std::get_if<long long>(&valore);
  const double numero = intero ? static_cast<double>(*intero) : std::get<double>(valore);
  if (larghezza >= 2 && larghezza <= kMassimoNumero) {
    return CellaNumero(numero, larghezza, destra, separatore, intero != nullptr);
  }
  const std::string cifre = std::to_string(std::abs(larghezza));
  std::string comandi = destra ? "(FD_" : "(FS_";
  if (larghezza < 0) comandi += '-';
  if (cifre.size() < 2) comandi += '0';
  comandi += cifre + ")";
  if (separatore) comandi += "(SC_|)";
  if (intero) comandi += "(NP_1)";
  double scala = 1;
  return Formatta(numero, comandi, scala, piattaforma);
}

}  // namespace qf17
