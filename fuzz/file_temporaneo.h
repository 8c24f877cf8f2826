#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

// The readers take paths: each fuzz input is written to a file of its own first.
inline std::filesystem::path FileDaDati(const std::uint8_t* dati, std::size_t n,
                                        const char* nome = "input") {
  static const std::filesystem::path cartella = [] {
    auto c = std::filesystem::temp_directory_path() /
             ("qf17-fuzz-" + std::to_string(static_cast<long>(getpid())));
    std::filesystem::create_directories(c);
    return c;
  }();
  auto percorso = cartella / nome;
  std::ofstream out(percorso, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(dati), static_cast<std::streamsize>(n));
  return percorso;
}
