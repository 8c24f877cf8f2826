#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qf17 {

struct Sessione;

// The save dialog of the drawing button.
inline constexpr std::string_view kTitoloDisegnoDaGenerare = "FILE DISEGNO DA GENERARE";
inline constexpr std::string_view kFiltroDisegno =
    "File disegno (*.grb)|*.grb|File disegno (*.dis)|*.dis|AutoCAD (*.dxf)|*.dxf";
// Overwrite prompt, "extension different" reported, path must exist.
inline constexpr int kFlagDialogoDisegno = 3074;
inline constexpr std::string_view kCreazioneDisegnoFallita = "Errore: creazione disegno fallita";

// The viewer hand-over, in the program folder.
inline constexpr std::string_view kFileNodoDis = "nodo.dis";
// Its preview in the temp folder, for a platform with a drawing viewer of its own.
inline constexpr std::string_view kFileNodoSvg = "nodo.svg";
inline constexpr std::string_view kFileIngressoVisualizzatore = "grafview.inp";
inline constexpr std::string_view kProgrammaVisualizzatore = "grafview.exe";
inline constexpr std::string_view kTitoloVisualizzatore = "VISUALIZZAZIONE FILE DISEGNO - ";
inline constexpr std::string_view kTastiRicarica = "^v";  // Ctrl+V: the viewer reloads its file
inline constexpr std::string_view kVisualizzatoreMancante = "Visualizzatore incompleto o mancante";

// Composes the executive sheet afresh (store emptied, store as target, composition, target
// cleared) and writes it to `nome` as `tipo`, compared in upper case: "DIS" through the DIS
// writer with version 4, "DXF" through the DXF writer in its plain mode, "SVG" through the
// preview writer after the DIS clean-up, so that the preview shows what the DIS file holds.
// `silenzioso` as for the DIS writer (0 the user is told of the saving and of a failure, 1
// nothing, 2 a failure only). True when the file was written. Any other type composes and
// writes nothing and gives false. (The GRB sheet has its own composition run: SalvaGRB.)
bool EsportaDisegno(Sessione& s, const std::string& nome, std::int16_t silenzioso,
                    std::string_view tipo);

// The DXF modes the drawing button never asks for, offered on the command line.
struct ModoEsportaDxf {
  bool esplodiTesti = false;  // texts as strokes of the stroke font
  bool monocromo = false;     // every colour 7
  double scala = 0;           // above 0: dashed lines broken up at the plot scale 1:scala
};
// Composes the sheet and writes it as DXF in the given modes.
bool EsportaDxf(Sessione& s, const std::string& nome, const ModoEsportaDxf& modo,
                std::int16_t silenzioso);

// The drawing button: the save dialog in the job folder with the node's name, then the chosen
// format under the busy pointer: filter 1 the GRB sheet, 2 a DIS file, any other a DXF file. A
// cancelled dialog does nothing and says nothing; a dialog that gives back no name tells "Errore:
// creazione disegno fallita". True when a file was written.
bool GeneraDisegno(Sessione& s);

// The full path of nodo.dis in the program folder.
std::string PercorsoNodoDis(const Sessione& s);
std::string PercorsoNodoSvg(const Sessione& s);
// The content of grafview.inp for the file `dis`: 2, its path, the window 0 0 8000 8000, one a
// line in the DIS files' number form, Windows-1252 with CR LF.
std::string TestoIngressoVisualizzatore(const std::string& dis);

// nodo.dis in the program folder, silently. True when written.
bool SalvaNodoDis(Sessione& s);

// Shows the sheet in the viewer: nodo.dis is written, and its preview nodo.svg in the temp
// folder; a platform with a drawing viewer of its own shows that. Otherwise a family viewer
// already showing nodo.dis is brought to the front and told to reload; with none, grafview.inp
// is written and the viewer started from the program folder. If it cannot be started the user
// is told; nodo.dis stays.
void ApriVisualizzatore(Sessione& s);

// The viewer button: the sheet in the viewer, then qf7tmp.grb in the job folder, silently, for
// the family's editor to pick up.
void ApriVis(Sessione& s);

}  // namespace qf17
