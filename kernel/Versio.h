// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string_view>

/// Version of the program: written into every project file; a file of a greater major or minor number isn't opened.
inline constexpr int kVersioMajor = 2, kVersioMinor = 1, kVersioRevision = 1;

/// Sum of the template's tables and columns (data/stemplate.sql). When it changes, kVersioMinor is raised with it, so
/// that an older program refuses the files whose new columns it would lose; building/Tiedostomuunnokset is where files
/// of older versions are brought up to the new one. A test computes the sum and tells the new one.
inline constexpr std::string_view kMallinTiiviste = "6f7ad34824338bab801c7a477dd56221a7857edac1ed960b3e166c0c0caecc4f";
