// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>
#include <string_view>

#include "kernel/Olio.h"

enum Tekstinumero : int;

/// The kinds of object that a saving measure concerns: a space, a machine, a group of electricity or water consumers,
/// a supply. An object of another class raises std::invalid_argument.

/// A copy of the object, of the class that it is.
std::unique_ptr<Olio> KopioiToimenpidekohde(const Olio& kohde);
/// Opens the object's ordinary dialog, which stands in no building; `muuttui` is called at its OK, before it closes.
/// With `tilaLukittu` an electricity group keeps its space.
void MuokkaaToimenpidekohdetta(Olio& kohde, bool tilaLukittu, std::function<void()> muuttui);

/// The module of a class of such objects, as a text; 0 for another class.
Tekstinumero ToimenpiteenModuuli(std::string_view luokka);
/// Its picture, a name in ui/kuvat; "" for another class.
std::string_view ToimenpiteenKuva(std::string_view luokka);
