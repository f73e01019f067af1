// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmIVKoneYhteenveto.h"

frmIVKoneYhteenveto::frmIVKoneYhteenveto() : Lomake("frmIVKoneYhteenveto") {
  cmdSulje.KunKlikataan([this] { Sulje(); });
}
