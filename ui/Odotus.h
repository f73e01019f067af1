// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "ui/Viestit.h"

/// Hourglass, and a text in the status panel, for one scope. Whatever way the scope is left, pointer and panel are as
/// they were; scopes may be nested.
class Odotus {
 public:
  Odotus();
  explicit Odotus(std::string teksti);
  ~Odotus();
  Odotus(const Odotus&) = delete;
  Odotus& operator=(const Odotus&) = delete;

  /// Another text in the panel until the end of the scope, painted at once.
  void Teksti(std::string teksti);

 private:
  Viestit& viestit_;
  std::string ennen_;
};
