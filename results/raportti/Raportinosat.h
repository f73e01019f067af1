// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "results/raportti/Raportti.h"

enum Tekstinumero : int;
class Raporttiaineisto;
class clsRakennus;

/// A chapter that a report can have. A module adds its own by a row of the table.
struct Raporttiosarivi {
  std::string_view nimi;  ///< by which the object's file knows it
  Tekstinumero otsikko;
  void (*rakenna)(Raportinosa& osa, Raporttiaineisto& aineisto);
  bool liite = false;  ///< an appendix: lettered, behind the chapters
};
std::span<const Raporttiosarivi> Raporttiosat();

/// The audit report of the building as it stands: all chapters but those named in the building's
/// `Raporttiasetukset`, numbered. Measures are computed first. A chapter that can't be computed tells why in place of
/// its contents. Nothing is shown to the person. Errors: 9999 when not even the summary can be made.
Raportti TeeRaportti(clsRakennus& rakennus);

// The builders, each in the file of its subject.
namespace raportti {
void Omistajalle(Raportinosa& osa, Raporttiaineisto& aineisto);
void Kohde(Raportinosa& osa, Raporttiaineisto& aineisto);
void Kulutus(Raportinosa& osa, Raporttiaineisto& aineisto);
void Lampo(Raportinosa& osa, Raporttiaineisto& aineisto);
void Ilmanvaihto(Raportinosa& osa, Raporttiaineisto& aineisto);
void Sahko(Raportinosa& osa, Raporttiaineisto& aineisto);
void Vesi(Raportinosa& osa, Raporttiaineisto& aineisto);
void Toimenpiteet(Raportinosa& osa, Raporttiaineisto& aineisto);
void Paketti(Raportinosa& osa, Raporttiaineisto& aineisto);
void Rakenneluettelo(Raportinosa& osa, Raporttiaineisto& aineisto);
void Hinnat(Raportinosa& osa, Raporttiaineisto& aineisto);
void Lahteet(Raportinosa& osa, Raporttiaineisto& aineisto);
void Tarkistukset(Raportinosa& osa, Raporttiaineisto& aineisto);
}  // namespace raportti
