// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Topics of the user's guide with a number of their own; those of the dialogs come from the text store (Ohjeaihe).
inline constexpr int kOhjeSisallys = 1;
inline constexpr int kOhjeTervetuloa = 5;

/// What shows the user's guide; the program sets one. Without one asking for the guide does nothing.
class Ohjenaytto {
 public:
  virtual ~Ohjenaytto() = default;
  /// Opens the page of the topic and brings it to front; a topic without a page opens the contents page.
  virtual void Avaa(int aihe) = 0;
  /// The same with the words to search for being asked.
  virtual void AvaaHaku() = 0;
};
void AsetaOhjenaytto(Ohjenaytto* naytto);

void AvaaOhje(int aihe);
void AvaaOhjeenHaku();
/// F1: the first topic of the form that has the person's attention; the contents page when there is none.
void AvaaLomakkeenOhje();
