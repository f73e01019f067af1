// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>

#include "settings/clsKatselmoijanTiedot.h"
#include "ui/Sidonta.h"

/// The contact fields of an auditor, which two forms have; the word tells whose they are.
inline constexpr const char *kLVIkatselmoija = "LVI", *kSahkokatselmoija = "Sah";
inline constexpr std::array kYhteystietokentat{
    Tekstikentta<&clsKatselmoijanTiedot::Tehtavanimike>("txt*0"),
    Tekstikentta<&clsKatselmoijanTiedot::Nimi>("txt*1"),
    Tekstikentta<&clsKatselmoijanTiedot::Puhelin>("txt*2"),
    Tekstikentta<&clsKatselmoijanTiedot::Matkapuhelin>("txt*3"),
    Tekstikentta<&clsKatselmoijanTiedot::Faksi>("txt*4"),
    Tekstikentta<&clsKatselmoijanTiedot::Sahkoposti>("txt*5"),
};
