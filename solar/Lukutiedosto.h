// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fstream>
#include <span>
#include <string>
#include <string_view>

/// A text file of numbers, read line by line: fields separated by commas, decimal point, blanks around a field ignored,
/// lines ending in LF or CRLF. Only the numbers are interpreted, so a heading may be in any encoding.
class Lukutiedosto {
 public:
  /// Opens the file and passes its heading, the first line.  Errors: AurinkoVirhe, also for a file with nothing in it.
  explicit Lukutiedosto(std::string_view polku);

  /// Takes the next line; false at the end of the file.
  bool SeuraavaRivi();

  /// Whether the line taken last holds nothing but blanks.
  bool OnTyhja() const;

  /// Reads the fields of the line taken last.  Errors: AurinkoVirhe unless there are exactly as many
  /// fields as luvut has places and each is a finite number.
  void Luvut(std::span<double> luvut) const;

  /// Throws an AurinkoVirhe that tells the file, the line and the reason.
  [[noreturn]] void Hylkaa(std::string_view syy) const;

 private:
  std::string polku_;
  std::ifstream tiedosto_;
  std::string rivi_;
  int numero_ = 0;
};
