#pragma once

#include <string>

namespace qf17 {

// The folders of the installation, found at start-up. None ends with a separator.
struct Cartelle {
  std::string DirRoot;
  std::string impostazioni;
  std::string progra;
  std::string driver;
  std::string custom;
  std::string Help;
  std::string Manuali;
  std::string temp;
  std::string lavori;  // the jobs folder
  std::string lavoro;  // the six-character job name
};

}  // namespace qf17
