// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

/// SHA-256 (FIPS 180-4) of the bytes as 64 hexadecimal digits in lower case.
std::string Sha256(std::string_view tavut);
