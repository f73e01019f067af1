// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>
#include <vector>

/// The contents of the user's guide in reading order, with the pages of its topics: the file "Lumivirta 2.hlp".
class Ohjeluettelo {
 public:
  struct Rivi {
    int taso = 0;      ///< 0 chapter, 1 page, 2 and above sections of a page
    std::string sivu;  ///< file in the folder of the pages, with "#" and the section's anchor
    std::string otsikko;
    std::vector<int> aiheet;
  };

  /// Reads "level TAB page TAB title TAB topics" lines; a line of another shape is left out.
  explicit Ohjeluettelo(std::string_view sisalto);

  const std::vector<Rivi>& Rivit() const { return rivit_; }
  /// The row of the topic; of the contents page, the first row, when no row has it. Nothing when the list is empty.
  const Rivi* Aihe(int aihe) const;

 private:
  std::vector<Rivi> rivit_;
};
