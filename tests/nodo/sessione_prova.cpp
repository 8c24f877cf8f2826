#include "sessione_prova.h"

#include <ctime>

namespace qf17::prova {
namespace {

Profilo Sezione(const std::string& nome, std::int16_t tipo, double h, double b, double a, double e,
                double area) {
  Profilo p;
  p.Nome = nome, p.Tipo = tipo, p.h = h, p.b = b, p.a = a, p.e = e, p.Area = area;
  return p;
}

Acciaio Steel(const std::string& nome, double sAmm, double sAmm40, double fy, double fy40,
              double ft, double ft40) {
  return {nome, "UNI EN 10025-2", sAmm, sAmm40, fy, fy40, ft, ft40, 1.05, 1.25};
}

Vite Classe(const std::string& nome, double sAmm, double tauAmm, double fy, double ft) {
  return {nome, sAmm, tauAmm, fy, ft, ft * 0.7, 1.25};
}

}  // namespace

void RiempiProfiliProva(LibreriaProfili& l) {
  int r = 0;
  l.Profili[++r] = Sezione("IPE140", 2, 140, 73, 4.7, 6.9, 1640);
  l.Profili[++r] = Sezione("HEA200", 2, 190, 200, 6.5, 10, 5380), l.NumProfili1 = r;
  l.Profili[++r] = Sezione("UPN120", 0, 120, 55, 7, 9, 1700);
  l.Profili[++r] = Sezione("UPN160", 0, 160, 65, 7.5, 10.5, 2400);
  l.Profili[++r] = Sezione("LU50x5", 1, 50, 50, 5, 5, 480);
  l.Profili[++r] = Sezione("LU60x6", 1, 60, 60, 6, 6, 691);
  l.Profili[++r] = Sezione("LU70x7", 1, 70, 70, 7, 7, 940);
  l.Profili[++r] = Sezione("LD80x60x7", 1, 80, 60, 7, 7, 938), l.NumProfiliTot = r;
  l.NumProfili2 = r - l.NumProfili1;
}

void RiempiMaterialiProva(Materiali& m) {
  int r = 0;
  m.Acciai[++r] = Steel("S 235 (FE 360)", 1600, 1400, 2350, 2150, 3600, 3600);
  m.Acciai[++r] = Steel("S 275 (FE 430)", 1900, 1700, 2750, 2550, 4300, 4100);
  m.Acciai[++r] = Steel("S 355 (FE 510)", 2400, 2100, 3550, 3350, 5100, 4700);
  // Only for the limit states: no allowable stress.
  m.Acciai[++r] = Steel("S 460", 0, 0, 4600, 4400, 5400, 5400);
  m.NumAcciai = r;
  r = 0;
  m.Viti[++r] = Classe("4.6", 1700, 1200, 2400, 4000);
  m.Viti[++r] = Classe("5.6", 2400, 1700, 3000, 5000);
  m.Viti[++r] = Classe("6.8", 3000, 2100, 4800, 6000);
  m.Viti[++r] = Classe("8.8", 3700, 2600, 6490, 8000);
  m.Viti[++r] = Classe("10.9", 5000, 3500, 9000, 10000), m.NumViti = r;
}

SessioneProva::SessioneProva() {
  RiempiProfiliProva(sessione.profili);
  RiempiMaterialiProva(sessione.materiali);
  sessione.nodo.DirLavoro = cartella.string();
}

std::chrono::system_clock::time_point OraLocale(int anno, int mese, int giorno, int ora,
                                                int minuto) {
  std::tm t{};
  t.tm_year = anno - 1900, t.tm_mon = mese - 1, t.tm_mday = giorno, t.tm_hour = ora;
  t.tm_min = minuto, t.tm_isdst = -1;
  return std::chrono::system_clock::from_time_t(std::mktime(&t));
}

std::filesystem::path DatoProva(const std::string& nome) {
  return std::filesystem::path(QF17_DATI_TEST) / "nodo" / "dati" / nome;
}

}  // namespace qf17::prova
