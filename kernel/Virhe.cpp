// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Virhe.h"
#include "tekstit/viestit.h"

#include <utility>

namespace {

std::string TekstiPuuttuu(int numero) { return "[String " + std::to_string(numero) + " is missing]"; }

std::string (*g_haku)(int) = TekstiPuuttuu;

std::string KasiteltavanKuvaus() {
  try {
    throw;
  } catch (const std::exception& e) {
    return SyynKuvaus(e);
  } catch (...) {
    return "tuntematon virhe";
  }
}

}  // namespace

Virhe::Virhe(int numero, std::string lahde, const std::string& kuvaus, std::exception_ptr syy, std::string syynKuvaus)
    : std::runtime_error(kuvaus),
      numero_(numero),
      lahde_(std::move(lahde)),
      syy_(std::move(syy)),
      syynKuvaus_(std::move(syynKuvaus)) {}

void NostaVirhe(const char* lahde) {
  throw Virhe(tekstit::kOhjelmassaTapahtuiVirhe, lahde, g_haku(tekstit::kOhjelmassaTapahtuiVirhe),
              std::current_exception(), KasiteltavanKuvaus());
}

void NostaVirhe(const char* lahde, std::string syy) {
  throw Virhe(tekstit::kOhjelmassaTapahtuiVirhe, lahde, g_haku(tekstit::kOhjelmassaTapahtuiVirhe), nullptr,
              std::move(syy));
}

void AsetaVirhetekstinHaku(std::string (*haku)(int numero)) { g_haku = haku ? haku : TekstiPuuttuu; }

std::string Virheketju(const std::exception& virhe) {
  const auto* oma = dynamic_cast<const Virhe*>(&virhe);
  if (!oma) return virhe.what();
  if (!oma->Syy()) return oma->Lahde() + "\n" + oma->SyynKuvaus();
  try {
    std::rethrow_exception(oma->Syy());
  } catch (const std::exception& syy) {
    return oma->Lahde() + "\n" + Virheketju(syy);
  } catch (...) {
    return oma->Lahde();
  }
}

std::string SyynKuvaus(const std::exception& virhe) {
  if (const auto* oma = dynamic_cast<const Virhe*>(&virhe); oma && !oma->SyynKuvaus().empty()) return oma->SyynKuvaus();
  return virhe.what();
}
