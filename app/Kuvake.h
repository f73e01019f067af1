// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QIcon>

/// The program's picture for windows and task bars: a snow-covered roof.
QIcon Ohjelmakuvake();
