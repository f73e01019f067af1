// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string_view>

/// Version of the program: written into every project file; a file of a greater major or minor number isn't opened.
inline constexpr int kVersioMajor = 2, kVersioMinor = 2, kVersioRevision = 0;

/// Sum of the template's tables and columns (data/stemplate.sql). When it changes, kVersioMinor is raised with it, so
/// that an older program refuses the files whose new columns it would lose; building/Tiedostomuunnokset is where files
/// of older versions are brought up to the new one. A test computes the sum and tells the new one.
inline constexpr std::string_view kMallinTiiviste = "42e27e350541157a5139948ca1a264b6860dba43281fc6d3eb434e73689eb849";
