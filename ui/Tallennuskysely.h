// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// What is saved beside the project: a picture or a table of a dialog.
struct Tallennettava {
  int otsikko;             ///< text id of the file dialog's title
  int suodatin;            ///< text id of its filter
  std::string_view paate;  ///< extension with its point; a name without it gets it
};

/// Asks for a file, `ehdotus` being the name proposed. An existing file is chosen only after the person's Yes. Nothing
/// when the person cancelled.
std::optional<std::string> KysyTallennuspaikka(const Tallennettava& mika, std::string_view ehdotus = {});

/// Asks for a file and lets `tallenna` write it. A failure (false, or std::exception) is told with the
/// file's name.
void KysyJaTallenna(const Tallennettava& mika, const std::function<bool(const std::string&)>& tallenna);
