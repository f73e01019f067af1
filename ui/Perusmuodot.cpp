// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Perusmuodot.h"

#include <libvoikko/voikko.h>

#include <algorithm>

#include "kernel/Kirjainkoko.h"

namespace {

VoikkoHandle* Avaa() {
  const char* virhe = nullptr;
  return voikkoInit(&virhe, "fi", nullptr);
}

}  // namespace

Perusmuodot::Perusmuodot() : sanasto_(Avaa(), voikkoTerminate) {}

std::vector<std::string> Perusmuodot::Hae(const std::string& sana) const {
  std::vector<std::string> muodot;
  voikko_mor_analysis** const tulkinnat = sanasto_ ? voikkoAnalyzeWordCstr(sanasto_.get(), sana.c_str()) : nullptr;
  if (!tulkinnat) return muodot;
  for (voikko_mor_analysis** tulkinta = tulkinnat; *tulkinta; ++tulkinta)
    if (char* muoto = voikko_mor_analysis_value_cstr(*tulkinta, "BASEFORM")) {
      if (std::string pieni = PieniksiKirjaimiksi(muoto); std::ranges::find(muodot, pieni) == muodot.end())
        muodot.push_back(std::move(pieni));
      voikko_free_mor_analysis_value_cstr(muoto);
    }
  voikko_free_mor_analysis(tulkinnat);
  return muodot;
}
