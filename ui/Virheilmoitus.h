// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <exception>
#include <string>

/// Tells of an error that the program goes on from: what happened, in which form, why and what to do, the chain of
/// sources behind a details button. The message is about the object that was being calculated.
void KerroVirhe(const std::exception& virhe, const std::string& ikkuna);
/// The same about the form in which the person is.
void KerroVirhe(const std::exception& virhe);

/// Caption of the form in which the person is; empty when there is none.
std::string AktiivisenOtsikko();
