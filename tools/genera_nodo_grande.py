#!/usr/bin/env python3
"""Writes the largest node the model allows: four groups of 2000 bolts, three members, 200 load
sets. Used to time a whole verification (`time qf17 verifica GRANDE.qf7 --metodo TA`).
Usage: genera_nodo_grande.py FILE.qf7"""
import sys

TESTATA = ("KORVINWIN [QuestoProgramma=QF17 - NODO DI TRAVATURA RETICOLARE] "
           "[Descrizione=file_QF17] [ReleaseKorvin=18] [ReleaseQuestoFile=1]")


def riga(valore, chiave):
    valore = str(valore)
    return valore.ljust(max(40, len(valore) + 1)) + "[" + chiave + "]"


def main():
    righe = [TESTATA, riga("UPN400", "Cor_Nome"), riga(0, "Cor_teta")]
    for i, (nome, teta) in enumerate([("LU200x20", 45), ("UPN300", 90), ("LU200x20", 135)], 1):
        righe += [riga(nome, f"Ast_nome {i}"), riga(1, f"Ast_flag {i}"),
                  riga(0, f"Ast_modo {i}"), riga(0, f"Ast_lato {i}"),
                  riga(teta, f"Ast_teta {i}"), riga(1, f"Ast_coeff {i}"),
                  riga(7100, f"Ast_ins {i}"), riga(7100, f"Sld_L {i} 1"),
                  riga(7100, f"Sld_L {i} 2")]
    righe.append(riga(10, "Lato_Sald"))
    for g in range(1, 5):
        righe.append(riga(2000, f"nBull {g}"))
        for k in range(1, 2001):
            # 500 bolts along at 14 mm, 4 rows across: every section of the diffusion and of the
            # net area sees holes of its own row, and no net area is used up by them.
            x = 40 + 14 * ((k - 1) % 500)
            y = 30 + 40 * ((k - 1) // 500)
            righe += [riga(x, f"xBull {g} {k}"), riga(y, f"yBull {g} {k}"),
                      riga(12, f"FiBull {g} {k}")]
    for chiave, valore in zip("abcdefgh", [2000, 2000, 2000, 2000, 500, 500, 500, 500]):
        righe.append(riga(valore, f"Fz_{chiave}"))
    righe += [riga(30, "Fz_s"), riga("S 355 (FE 510)", "acciaio_Nome"),
              riga("10.9", "vite_Nome"), riga(1, "Esposizione"), riga(200, "nSollAg")]
    for j in range(1, 201):
        f = 1000 + 37 * j
        righe += [riga(f, f"SforzoNormale 1 {j}"), riga(-f // 2, f"SforzoNormale 2 {j}"),
                  riga(-f, f"SforzoNormale 3 {j}"), riga(j % 2, f"CasoCarico {j}"),
                  riga(f"Soll {j}", f"NomeSa {j}")]
    righe += [riga(0, "NumNodi"), riga(0, "TipoVer")]
    with open(sys.argv[1], "w", encoding="cp1252", newline="\r\n") as f:
        f.write("\n".join(righe) + "\n")


main()
