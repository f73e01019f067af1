// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <string>

class clsRakennus;
struct Raportti;

/// Writes a report as a PDF; raises std::exception with the reason. Painting pages isn't the model's: the program with
/// windows sets it. Without one no PDF can be made, and the dialog's button is disabled.
using Pdfkirjoitin = std::function<void(const Raportti& raportti, const std::string& tiedosto)>;
void AsetaPdfkirjoitin(Pdfkirjoitin kirjoitin);

/// Opens the dialog of the building's report, modal: the person chooses chapters, writes the free texts and makes the
/// report, which is opened when it is ready. OK keeps what was chosen and written. A file that can't be written is told
/// of, and another name asked for. Errors: 9999.
void NaytaRaporttiikkuna(clsRakennus& rakennus);
