// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

class clsRakenne;
class clsTila;

/// Names of the saving measures of the building that concern the object or change an attribute of it or of what it
/// owns, parted by commas; empty when there is none and it may be removed.
std::string ViittaavatToimenpiteet(const clsTila& tila);
std::string ViittaavatToimenpiteet(const clsRakenne& rakenne);
