// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tallennuskysely.h"

#include <filesystem>
#include <system_error>

#include "kernel/Kirjainkoko.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/viestit.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"

namespace {

std::string Paatteella(const std::string& tiedosto, std::string_view paate) {
  const std::string nykyinen = std::filesystem::path(tiedosto).extension().string();
  return SamaNimi(nykyinen, paate) ? tiedosto : tiedosto + std::string(paate);
}

bool SaaKirjoittaa(const std::string& tiedosto) {
  std::error_code virhe;
  if (!std::filesystem::exists(tiedosto, virhe)) return true;
  return ViestitNyt().Nayta({Teksti(tekstit::kKorvataankoAlku) + tiedosto + Teksti(tekstit::kKorvataankoLoppu),
                             Teksti(tekstit::kKorvataankoOtsikko), Vakavuus::Kysymys, Napit::KyllaEi, Vastaus::Ei}) ==
         Vastaus::Kylla;
}

/// Why it couldn't be saved; "" when it was.
std::string Yrita(const std::function<bool(const std::string&)>& tallenna, const std::string& tiedosto) try {
  const Odotus odotus;
  return tallenna(tiedosto) ? "" : " ";
} catch (const std::exception& virhe) {
  return std::string("\n") + virhe.what();
}

}  // namespace

std::optional<std::string> KysyTallennuspaikka(const Tallennettava& mika, std::string_view ehdotus) {
  auto valittu = ViestitNyt().KysyTallennettavaTiedosto(Teksti(mika.otsikko), Teksti(mika.suodatin), ehdotus);
  if (!valittu) return std::nullopt;
  std::string tiedosto = Paatteella(*valittu, mika.paate);
  return SaaKirjoittaa(tiedosto) ? std::optional(std::move(tiedosto)) : std::nullopt;
}

void KysyJaTallenna(const Tallennettava& mika, const std::function<bool(const std::string&)>& tallenna) {
  const auto tiedosto = KysyTallennuspaikka(mika);
  if (!tiedosto) return;
  if (const std::string syy = Yrita(tallenna, *tiedosto); !syy.empty())
    Ilmoita(Teksti(tekstit::kTiedostoaEiVoituTallentaa) + " " + *tiedosto + syy, Teksti(tekstit::kVirhe),
            Vakavuus::Virhe);
}
