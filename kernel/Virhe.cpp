// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Virhe.h"
#include "tekstit/viestit.h"

#include <utility>

namespace {

std::string TekstiPuuttuu(int numero) { return "[String " + std::to_string(numero) + " is missing]"; }

std::string (*g_haku)(int) = TekstiPuuttuu;

/// What the error being handled says, and the name of the object that it is about.
struct Kasiteltava {
  std::string kuvaus;
  std::string kohde;
};
Kasiteltava KasiteltavaVirhe() {
  try {
    throw;
  } catch (const Virhe& e) {
    return {SyynKuvaus(e), e.Kohde()};
  } catch (const std::exception& e) {
    return {e.what(), {}};
  } catch (...) {
    return {"tuntematon virhe", {}};
  }
}

[[noreturn]] void Nosta(const char* lahde, Kasiteltava syy, std::exception_ptr syyolio) {
  throw Virhe(tekstit::kOhjelmassaTapahtuiVirhe, lahde, g_haku(tekstit::kOhjelmassaTapahtuiVirhe), std::move(syyolio),
              std::move(syy.kuvaus), std::move(syy.kohde));
}

}  // namespace

Virhe::Virhe(int numero, std::string lahde, const std::string& kuvaus, std::exception_ptr syy, std::string syynKuvaus,
             std::string kohde)
    : std::runtime_error(kuvaus),
      numero_(numero),
      lahde_(std::move(lahde)),
      syy_(std::move(syy)),
      syynKuvaus_(std::move(syynKuvaus)),
      kohde_(std::move(kohde)) {}

void NostaVirhe(const char* lahde) { Nosta(lahde, KasiteltavaVirhe(), std::current_exception()); }

void NostaVirhe(const char* lahde, Virheenkohde kohde) {
  Kasiteltava syy = KasiteltavaVirhe();
  if (syy.kohde.empty()) syy.kohde = kohde.nimi;
  Nosta(lahde, std::move(syy), std::current_exception());
}

void NostaVirhe(const char* lahde, std::string syy) { Nosta(lahde, {std::move(syy), {}}, nullptr); }

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
