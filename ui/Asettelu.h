// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <map>
#include <string>

#include "ui/Ohjain.h"

namespace pugi {
class xml_node;
}

/// Where the layouts of a form file put its controls when each control has the usual size of its kind: the places of a
/// form that has no screen.
class Asettelu {
 public:
  /// `juuri`: the outermost widget of the form file.
  explicit Asettelu(const pugi::xml_node& juuri);
  /// Of a control that the file doesn't have, the form's corner.
  Lomakepaikka operator[](const std::string& nimi) const;

 private:
  std::map<std::string, Lomakepaikka> paikat_;
};
