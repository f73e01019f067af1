// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Version of the program: written into every project file; a file of a greater major or minor number isn't opened.
inline constexpr int kVersioMajor = 2, kVersioMinor = 0, kVersioRevision = 1;
