// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <map>
#include <string>
#include <vector>

/// A row of a table of the sample audits: its cells by the headings of their columns.
using Rivi = std::map<std::string, std::string>;

/// The parts of a text between dividers.
std::vector<std::string> Kentat(const std::string& rivi, char erotin);
/// A file of rows, the first one with the headings; a cell with commas stands in quotes. Raises std::out_of_range for a
/// row that is too short.
std::vector<Rivi> LueTaulukko(const std::string& polku);
/// The cell as a number; raises std::runtime_error with the row's Tunnus and the column.
double Luku(const Rivi& rivi, const std::string& sarake);
std::int32_t Kokonaisluku(const Rivi& rivi, const std::string& sarake);
