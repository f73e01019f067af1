// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// Opens the page in the desktop's browser. A missing address ("", "about:blank"), one that isn't a web page, or a
/// desktop without a browser is told in a message.
void NaytaWWW(const std::string& osoite);
