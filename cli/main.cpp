#include <CLI/CLI.hpp>

int main(int argc, char** argv) {
  CLI::App app{"QF17 - nodo di travatura reticolare"};
  CLI11_PARSE(app, argc, argv);
  return 0;
}
