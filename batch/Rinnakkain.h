// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>

#include "batch/Kohdelaskenta.h"

/// Computes pieces 0 to `maara` - 1 in so many processes, and gives each result to `valmis` in order as soon as it and
/// those before it are there. A process that ends too early costs its own pieces only: they give an error. With one
/// process the work is done here.
void LaskeRinnakkain(std::size_t maara, unsigned prosesseja, const std::function<Laskettu(std::size_t)>& laske,
                     const std::function<void(const Laskettu&)>& valmis);
