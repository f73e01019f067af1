// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <string>

#include "ui/Lomake.h"

/// Checks the fields of a form by their design-time Tag "tip id,type,lower,upper,unusual": with the type "N" the text
/// must be a number (an empty one isn't) between the limits, each of which may be missing; with the type "K" a time of
/// day; with the type "P" a date, or empty. Looks at enabled text boxes whose own hidden flag is off, also on hidden
/// pages. At the first failure shows error 1008 (no number; the text is selected), 1009 (limits), 1013 (no time) or a
/// message of its own (no date), with the name, unit and limits of the field, gives the field the focus and returns
/// false. A message within a second of the last one is left out, so that a field that keeps losing the focus raises no
/// storm of boxes; the focus moves all the same.
///
/// When all are good, numbers that the person has written above `unusual` are told of, and accepted.
bool TarkistaLukukentat(const Lomake& lomake);

/// The same for one field.
bool TarkistaKentta(Ohjain& kentta);
/// The same for one control, telling nothing.
bool Kelpaa(const Ohjain& ohjain);
/// What is told of a field that is empty and of one that holds no number; both get its name and unit.
struct Lukuviestit {
  void (*puuttuu)(const std::string& kentta);
  void (*eiLuku)(const std::string& kentta);
};
/// The field holds a number, whatever its limits. If not, takes the person there, with a text that is no number
/// selected, and tells.
bool VaadiLuku(Ohjain& kentta, const Lukuviestit& viestit);
/// Tells of one field: its name, a blank and `viesti`, and takes the person there.
void HylkaaKentta(Ohjain& kentta, const std::string& viesti);

/// Milliseconds from any start, wrapping to 0. Tests give their own; nullptr sets the real clock.
void AsetaTarkistuksenKello(std::uint32_t (*kello)());
