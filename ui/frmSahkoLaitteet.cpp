// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmSahkoLaitteet.h"

frmSahkoLaitteet::frmSahkoLaitteet() : Puulomake("frmSahkoLaitteet") { cmdJakauma.Nostaa(JakaumaKlikattu); }
