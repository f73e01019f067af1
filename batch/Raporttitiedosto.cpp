// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Raporttitiedosto.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <system_error>

#include "batch/Viestinkeruu.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Hakemistot.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttikirja.h"

namespace {

bool OnPdf(const std::string& tiedosto) { return tiedosto.ends_with(".pdf"); }

/// Runs the program that makes PDFs; it tells itself what is amiss.
void TeePdf(const std::string& tiedosto, const std::string& raportti) {
  const std::string ohjelma = AppPath() + "lumivirta-pdf";
  std::string sanat[] = {ohjelma, tiedosto, raportti};
  char* const argv[] = {sanat[0].data(), sanat[1].data(), sanat[2].data(), nullptr};
  pid_t tunnus = 0;
  if (const int virhe = posix_spawn(&tunnus, ohjelma.c_str(), nullptr, nullptr, argv, environ))
    throw std::system_error(virhe, std::generic_category(), ohjelma);
  int tila = 0;
  if (waitpid(tunnus, &tila, 0) != tunnus || !WIFEXITED(tila) || WEXITSTATUS(tila) != 0)
    throw std::runtime_error("raporttia " + raportti + " ei voitu tehdä");
}

}  // namespace

bool OnRaporttitiedosto(const std::string& raportti) { return OnPdf(raportti) || raportti.ends_with(".xlsx"); }

void TeeRaporttitiedosto(const std::string& tiedosto, const std::string& raportti) {
  if (OnPdf(raportti)) return TeePdf(tiedosto, raportti);
  const Viestinkeruu viestit;
  clsRakennus rakennus;
  AsetaGlobaaliRakennus(&rakennus);
  rakennus.Hae(tiedosto);
  KirjoitaRaporttikirja(TeeRaportti(rakennus), raportti);
}
