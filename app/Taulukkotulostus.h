// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "results/Taulukkokirja.h"

class QPagedPaintDevice;
class QWidget;

/// Paints the sheets on the pages of a printer, its preview or a PDF file. Each sheet begins a page, is at most as wide
/// as the page, and has its title and its headings on every page and the page numbers below. Gives the number of pages.
int TulostaSivut(const std::vector<Taulukkosivu>& sivut, QPagedPaintDevice& laite);

/// Shows on a preview how the sheets come on paper, with the page of the settings; prints from there.
void EsikatseleSivut(const std::vector<Taulukkosivu>& sivut, QWidget& ikkuna);
