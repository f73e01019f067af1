// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Ohjaimet.h"

#include <stdexcept>
#include <utility>

#include "kernel/Luvut.h"

Ohjainkahva::Ohjainkahva(const Lomake& lomake, std::string_view nimi, Ohjaintyyppi tyyppi)
    : ohjain_(&lomake.Etsi(nimi)) {
  if (ohjain_->Tyyppi() != tyyppi)
    throw TuntematonOhjain(lomake.Nimi() + ": ohjain " + std::string(nimi) + " ei ole " +
                           std::string(TyypinNimi(tyyppi)));
}

void TextBox::Luku(double arvo, std::string_view kuvio) const { ohjain_->Teksti(Muotoile(arvo, kuvio), arvo); }

double TextBox::Luku() const { return LueLuku(Teksti()).value_or(0.0); }

void ComboBox::Rivit(const std::vector<std::string>& rivit) const {
  std::vector<std::vector<std::string>> solut;
  for (const std::string& rivi : rivit) solut.push_back({rivi});
  ohjain_->Rivit(std::move(solut));
}

std::string ComboBox::Teksti() const {
  return Indeksi() < 0 ? std::string() : ohjain_->Rivit()[static_cast<std::size_t>(Indeksi())].front();
}

void CommandButton::Nostaa(const std::function<void()>& tapahtuma) const {
  KunKlikataan([&tapahtuma] { Nosta(tapahtuma); });
}

void TabStrip::SivuKaytossa(int indeksi, bool kaytossa) const {
  std::vector<Osa> sivut = ohjain_->Osat();
  sivut.at(static_cast<std::size_t>(indeksi)).kaytossa = kaytossa;
  ohjain_->Osat(std::move(sivut));
}

void ListView::Valitse(const Tunniste& avain) const {
  const Luettelo& lista = ohjain_->Lista();
  const int rivi = lista.Etsi(avain);
  Indeksi(rivi < 0 && lista.Maara() > 0 ? lista.Alemmat(Luettelo::kEiRivia).front() : rivi);
}

bool LueArvo(const TextBox& kentta, double& kohde) {
  const bool muuttunut = kentta.Muuttunut();
  const auto luku = muuttunut ? LueLuku(kentta.Teksti()) : kentta.Kohde().TaytettyLuku();
  if (luku) kohde = *luku;
  return luku || !muuttunut;
}

bool LueArvo(const TextBox& kentta, float& kohde) {
  double luku = kohde;
  if (!LueArvo(kentta, luku)) return false;
  kohde = static_cast<float>(luku);
  return true;
}

bool LueArvo(const TextBox& kentta, std::int32_t& kohde) {
  double luku = kohde;
  if (!LueArvo(kentta, luku)) return false;
  try {
    kohde = PyoristaKokonaisluvuksi(luku);
  } catch (const std::out_of_range&) {
    return false;
  }
  return true;
}
