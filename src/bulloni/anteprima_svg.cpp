#include <string>
#include <vector>

#include "bulloni/area_bullonata.h"
#include "disegno/formati/salva_svg.h"

namespace qf17 {
namespace {

std::string_view Colore(ColoreAnteprima c) {
  switch (c) {
    case ColoreAnteprima::Asse:
      return "#0000c0";
    case ColoreAnteprima::Sezione:
      return "#000000";
    case ColoreAnteprima::Area:
      return "#0000ff";
    case ColoreAnteprima::Bullone:
      return "#008000";
  }
  return "#000000";
}

// Dash patterns in pixels of the picture, turned into millimetres by the scale.
std::string Tratto(TrattoAnteprima t, double mmPerPixel) {
  auto mm = [mmPerPixel](double px) { return NumeroSvg(px * mmPerPixel); };
  switch (t) {
    case TrattoAnteprima::Continuo:
      return {};
    case TrattoAnteprima::Tratteggiato:
      return " stroke-dasharray=\"" + mm(6) + " " + mm(4) + "\"";
    case TrattoAnteprima::TrattoPunto:
      return " stroke-dasharray=\"" + mm(12) + " " + mm(3) + " " + mm(2) + " " + mm(3) + "\"";
  }
  return {};
}

}  // namespace

std::string AnteprimaSvg(const AreaEditor& a, const std::vector<PrimitivaAnteprima>& cose,
                         double larghezzaPicture, double altezzaPicture) {
  const double px = 1 / a.scala;  // one pixel of the picture in millimetres
  // Y upwards as in the form: the picture's top is the window's, and y is turned on the way.
  auto X = [](double x) { return NumeroSvg(x); };
  auto Y = [&a](double y) { return NumeroSvg(a.alto - y); };
  std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  svg += "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + NumeroSvg(larghezzaPicture) +
         "\" height=\"" + NumeroSvg(altezzaPicture) + "\" viewBox=\"" + X(a.sinistra) + " " +
         NumeroSvg(0) + " " + NumeroSvg(a.destra - a.sinistra) + " " + NumeroSvg(a.alto - a.basso) +
         "\">\n";
  svg += "<rect x=\"" + X(a.sinistra) + "\" y=\"0\" width=\"" + NumeroSvg(a.destra - a.sinistra) +
         "\" height=\"" + NumeroSvg(a.alto - a.basso) + "\" fill=\"#ffffff\"/>\n";
  for (const PrimitivaAnteprima& p : cose) {
    const std::string colore(Colore(p.colore));
    switch (p.tipo) {
      case PrimitivaAnteprima::Tipo::Linea:
        svg += "<line x1=\"" + X(p.x1) + "\" y1=\"" + Y(p.y1) + "\" x2=\"" + X(p.x2) + "\" y2=\"" +
               Y(p.y2) + "\" stroke=\"" + colore + "\" stroke-width=\"" + NumeroSvg(px) + "\"" +
               Tratto(p.tratto, px) + "/>\n";
        break;
      case PrimitivaAnteprima::Tipo::Cerchio:
        svg += "<circle cx=\"" + X(p.x1) + "\" cy=\"" + Y(p.y1) + "\" r=\"" + NumeroSvg(p.raggio) +
               "\" fill=\"none\" stroke=\"" + colore + "\" stroke-width=\"" + NumeroSvg(px) +
               "\"/>\n";
        break;
      case PrimitivaAnteprima::Tipo::Testo:
        // A label of the form stands with its top left corner on its point: the baseline of a
        // 12-pixel text is 10 pixels below it.
        svg += "<text x=\"" + X(p.x1) + "\" y=\"" + Y(p.y1 - 10 * px) +
               "\" font-family=\"sans-serif\" " + "font-size=\"" + NumeroSvg(12 * px) +
               "\" fill=\"" + colore + "\">" + TestoXml(p.testo) + "</text>\n";
        break;
    }
  }
  return svg + "</svg>\n";
}

}  // namespace qf17
