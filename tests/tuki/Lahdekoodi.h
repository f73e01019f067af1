// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdlib>
#include <stdexcept>
#include <string>

/// Full path of a file of the source tree, "ui/forms". The root is told by the environment variable LUMIVIRTA_LAHDE,
/// which CTest sets: compiled in, it would keep two clones from sharing the compiler cache.
inline std::string Lahdekoodi(const std::string& polku) {
  const char* juuri = std::getenv("LUMIVIRTA_LAHDE");
  if (!juuri) throw std::runtime_error("LUMIVIRTA_LAHDE puuttuu: aja testit ctestillä tai aseta se");
  return std::string(juuri) + "/" + polku;
}
