#include "bulloni/form_bulloni.h"

#include <algorithm>
#include <cmath>

#include "disegno/opzioni.h"
#include "librerie/numeri.h"
#include "librerie/token.h"
#include "nodo/nodo.h"
#include "piattaforma/piattaforma.h"
#include "verifica/comuni.h"

namespace qf17 {
namespace {

// Val of a box.
double Val(const std::string& testo) {
  return NumeroIniziale(testo);
}

// The list refresh that follows an action: the list for the working count, its first five.
void RefreshLista(FormBulloni& form, const Nodo& nodo) {
  ImpostaListaBulloni(form, form.NumBulloniEdit);
  RefreshTextBull(form, nodo, 1, std::min<int>(form.NumBulloniEdit, 5));
}

void Ridisegna(FormBulloni& form, const Nodo& nodo) {
  form.anteprima = DisegnaAreaBullonata(form.area);
  const auto bulloni = DisegnaBulloni(nodo, form.GruppoBulloni, form.NumBulloniEdit);
  form.anteprima.insert(form.anteprima.end(), bulloni.begin(), bulloni.end());
}

// Whether the button of the group may open the editor; the guard's message when it may not.
bool PuoAprire(const Nodo& n, Piattaforma& p, std::int16_t gruppo) {
  const double lunghezza = gruppo == 1 ? n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d : n.Ast_ins[gruppo - 1];
  const bool corta = lunghezza <= 0.0001;
  if (lunghezza < 0.0001) {
    const std::string testo =
        gruppo == 1 ? "Dimensione del fazzoletto non valida"
                    : "Dimensione dell'asta " +
                          std::string(1, static_cast<char>('A' + gruppo - 2)) + " non valida";
    p.Messaggio(testo, "ATTENZIONE", Icona::Informazione, Pulsanti::Ok);
  }
  return !corta && !(gruppo == 1 && n.Corrente.Tipo == 2);
}

}  // namespace

std::string TitoloFormBulloni(std::int16_t gruppo) {
  if (gruppo == 1) return "Inserimento bulloni sul corrente";
  return "Inserimento bulloni sull'asta " + std::string(1, static_cast<char>('A' + gruppo - 2));
}

std::optional<FormBulloni> ApriFormBulloni(const Nodo& nodo, const Opzioni& opzioni,
                                           Piattaforma& piattaforma, std::int16_t gruppo,
                                           const CaselleLunghezze& caselle, double larghezzaPicture,
                                           double altezzaPicture) {
  if (!PuoAprire(nodo, piattaforma, gruppo)) return std::nullopt;
  FormBulloni f;
  f.GruppoBulloni = gruppo;
  f.Caption = TitoloFormBulloni(gruppo);
  f.larghezzaPicture = larghezzaPicture;
  f.altezzaPicture = altezzaPicture;
  f.area = ImpostaScalaPicture(nodo, gruppo, caselle, larghezzaPicture, altezzaPicture);
  f.NumBulloniEdit = nodo.nBull[gruppo - 1];
  ImpostaListaBulloni(f, f.NumBulloniEdit);
  f.TollForoBull = "Tolleranza foro/bullone: " + TestoNumero(opzioni[25]);
  f.MbpTxt = {"12", "2", "2"};
  CalcolaValori(f, nodo, opzioni);
  RefreshTextBull(f, nodo, 1, std::min<int>(f.NumBulloniEdit, 5));
  Ridisegna(f, nodo);
  return f;
}

void CalcolaValori(FormBulloni& f, const Nodo& nodo, const Opzioni& opzioni) {
  const double foro = DiamForo(opzioni, Val(f.MbpTxt[0]));
  const bool slu = nodo.TipoVer == 1;
  const std::string margine = TestoNumero(slu ? std::floor(1.2 * foro + 1) : 2 * foro);
  f.MargSx = f.MargDx = f.MargSu = f.MargIn = margine;
  const double righe = Val(f.MbpTxt[1]), colonne = Val(f.MbpTxt[2]);
  // The width is divided by the columns, not by the gaps between them as the generator does:
  // the readout has always been that coarse.
  if (colonne > 0) {
    f.Passo[0] =
        TestoNumero(std::floor((f.area.AreaLarghezza - Val(f.MargDx) - Val(f.MargSx)) / colonne));
  }
  if (righe > 0) {
    f.Passo[1] =
        TestoNumero(std::floor((f.area.AreaAltezza - Val(f.MargIn) - Val(f.MargSu)) / righe));
  }
  double minX = 3.0, minY = 3.0;
  if (slu) {
    const bool corrente = f.GruppoBulloni == 1;
    minX = corrente ? 2.4 : 2.2;
    minY = corrente ? 2.2 : 2.4;
  }
  f.Fi3[0] = colonne > 1 ? TestoNumero(minX * foro) : "-";
  f.Fi3[1] = righe > 1 ? TestoNumero(minY * foro) : "-";
}

void ImpostaListaBulloni(FormBulloni& f, int n) {
  for (int r = 0; r < 5; ++r) f.righe[static_cast<std::size_t>(r)].visibile = n >= 6 || r < n;
  f.Scroll1.visibile = n >= 6;
  if (n >= 6) {
    f.Scroll1.minimo = 1;
    f.Scroll1.massimo = n - 4;
    f.Scroll1.grande = 5;
    f.Scroll1.piccolo = 1;
    f.Scroll1.valore = std::clamp(f.Scroll1.valore, 1, n - 4);
  }
}

void RefreshTextBull(FormBulloni& f, const Nodo& nodo, int primo, int ultimo) {
  const int g = f.GruppoBulloni - 1;
  std::size_t r = 0;
  for (int k = primo; k <= ultimo && r < f.righe.size(); ++k, ++r) {
    RigaBullone& riga = f.righe[r];
    riga.Lbul = std::to_string(k);
    riga.Xbul = Rifila(TestoNumero(nodo.xBull(g, k)));
    riga.Ybul = Rifila(TestoNumero(nodo.yBull(g, k)));
    riga.Fibul = Rifila(TestoNumero(nodo.FiBull(g, k)));
  }
}

void Scroll1Cambia(FormBulloni& f, const Nodo& nodo, int valore) {
  f.Scroll1.valore = valore;
  RefreshTextBull(f, nodo, valore, valore + 4);
}

bool CreaMatriceBulloni(Nodo& nodo, FormBulloni& f, int righe, int colonne, double diametro,
                        double margineDx, double margineSx, double margineIn, double margineSu) {
  if (colonne < 1 || righe < 1) return false;
  const double W = f.area.AreaLarghezza - margineDx - margineSx;
  const double H = f.area.AreaAltezza - margineSu - margineIn;
  if (!(W > 0.0001) || !(H > 0.0001)) return false;
  const double dx = colonne > 1 ? W / (colonne - 1) : 0;
  const double dy = righe > 1 ? H / (righe - 1) : 0;
  // The nominal diameter, not the hole, against the spacing.
  if (colonne > 1 && 2 * diametro > dx) return false;
  if (righe > 1 && 2 * diametro > dy) return false;
  const int g = f.GruppoBulloni - 1;
  int k = f.NumBulloniEdit;
  for (int r = 1; r <= righe; ++r) {
    for (int c = 1; c <= colonne; ++c) {
      ++k;
      nodo.xBull(g, k) = (c - 1) * dx + margineSx;
      nodo.yBull(g, k) = (r - 1) * dy + margineIn;
      nodo.FiBull(g, k) = diametro;
    }
  }
  f.NumBulloniEdit = InI16(k);
  return true;
}

bool Matrice(FormBulloni& f, Nodo& nodo, Piattaforma& p) {
  const int righe = InI16(Val(f.MbpTxt[1]));
  const int colonne = InI16(Val(f.MbpTxt[2]));
  if (!CreaMatriceBulloni(nodo, f, righe, colonne, Val(f.MbpTxt[0]), Val(f.MargDx), Val(f.MargSx),
                          Val(f.MargIn), Val(f.MargSu))) {
    p.Messaggio("Matrice non valida", "ATTENZIONE", Icona::Attenzione, Pulsanti::Ok);
    return false;
  }
  RefreshLista(f, nodo);
  Ridisegna(f, nodo);
  return true;
}

void CasellaBullone(FormBulloni& f, Nodo& nodo, int riga, int colonna, const std::string& testo) {
  const RigaBullone& r = f.righe.at(static_cast<std::size_t>(riga));
  const int g = f.GruppoBulloni - 1;
  const int k = static_cast<int>(NumeroIniziale(r.Lbul));
  double& campo = colonna == 0   ? nodo.xBull(g, k)
                  : colonna == 1 ? nodo.yBull(g, k)
                                 : nodo.FiBull(g, k);
  campo = Val(testo);
}

void Singolo(FormBulloni& f, const Nodo& nodo) {
  // A number past the table is the table's own fault, as for the generator.
  (void)nodo.xBull(f.GruppoBulloni - 1, f.NumBulloniEdit + 1);
  f.NumBulloniEdit = InI16(f.NumBulloniEdit + 1.0);
  RefreshLista(f, nodo);
  Ridisegna(f, nodo);
}

void Rimuovi(FormBulloni& f, const Nodo& nodo) {
  if (f.NumBulloniEdit <= 0) return;
  --f.NumBulloniEdit;
  RefreshLista(f, nodo);
  Ridisegna(f, nodo);
}

void RimuoviT(FormBulloni& f, const Nodo& nodo, Piattaforma& p) {
  if (p.Messaggio("Rimuovere tutti i bulloni?", "ATTENZIONE", Icona::Attenzione,
                  Pulsanti::OkAnnulla) != Risposta::Ok) {
    return;
  }
  f.NumBulloniEdit = 0;
  RefreshLista(f, nodo);
  Ridisegna(f, nodo);
}

void CopiaIndietro(Nodo& n, std::int16_t gruppo, int primo, int ultimo) {
  const int g = gruppo - 1;
  for (int i = primo; i <= ultimo; ++i) {
    n.xBull(g, i) = n.xBull(g, i + 1);
    n.yBull(g, i) = n.yBull(g, i + 1);
    n.FiBull(g, i) = n.FiBull(g, i + 1);
  }
}

void LbulDblClick(FormBulloni& f, Nodo& nodo, int riga) {
  const int k = static_cast<int>(NumeroIniziale(f.righe.at(static_cast<std::size_t>(riga)).Lbul));
  CopiaIndietro(nodo, f.GruppoBulloni, k + 1, f.NumBulloniEdit);
  f.NumBulloniEdit = InI16(f.NumBulloniEdit - 1.0);
  RefreshLista(f, nodo);
}

void DisegnaBp(FormBulloni& f, const Nodo& nodo) {
  Ridisegna(f, nodo);
}

void MatBulOK(const FormBulloni& f, Nodo& nodo) {
  nodo.nBull[f.GruppoBulloni - 1] = f.NumBulloniEdit;
}

void PuntatoreSu(FormBulloni& f, ControlloConSuggerimento c) {
  switch (c) {
    case ControlloConSuggerimento::DisegnaBp:
      f.suggerimento = " Disegna i bulloni ";
      break;
    case ControlloConSuggerimento::Singolo:
      f.suggerimento = " Aggiunge un bullone ";
      break;
    case ControlloConSuggerimento::Rimuovi:
      f.suggerimento = " Rimuove l'ultimo bullone inserito ";
      break;
    case ControlloConSuggerimento::RimuoviT:
      f.suggerimento = " Rimuove tutti i bulloni inseriti ";
      break;
    case ControlloConSuggerimento::Xbul:
      f.suggerimento = " Ascisse dei bulloni inseriti ";
      break;
    case ControlloConSuggerimento::Ybul:
      f.suggerimento = " Ordinate dei bulloni inseriti ";
      break;
    case ControlloConSuggerimento::Fibul:
      f.suggerimento = " Diametro dei bulloni inseriti ";
      break;
  }
}

void Timer1(FormBulloni& f) {
  f.Help = f.suggerimento;
}

void NascondiSuggerimento(FormBulloni& f) {
  f.Help.clear();
}

}  // namespace qf17
