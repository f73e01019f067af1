// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>
#include <vector>

/// Lines of a text file without their ends (LF or CRLF), as UTF-8: a file that isn't valid UTF-8 is read as
/// Windows-1252, a byte order mark is dropped. Raises std::runtime_error with a Finnish text if it can't be read.
std::vector<std::string> LueRivit(const std::string& polku);

/// The text with each byte that isn't part of valid UTF-8 as U+FFFD.
std::string KorvaaVirheelliset(std::string_view tavut);
/// The text as UTF-8: itself when valid, else read as Windows-1252.
std::string Utf8ksi(std::string_view tavut);
