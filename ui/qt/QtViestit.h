// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "ui/Viestikooste.h"

/// The way to the person by real windows. While a command runs, messages with only an OK button are held back; equal
/// ones become one with its count, and they are shown in order at the end of the command, before a question, or before
/// a form opens as modal. Sets itself as the present way for its life.
class QtViestit : public Viestit {
 public:
  QtViestit();
  ~QtViestit() override;

  /// Shows the text of the first status panel; the main window's.
  void AsetaPaneelinNaytto(std::function<void(const std::string&)> nayta);

  Vastaus Nayta(const Viesti& viesti) override;
  std::optional<std::string> KysyTeksti(std::string_view kehote, std::string_view otsikko,
                                        std::string_view oletus) override;
  std::optional<std::string> KysyAvattavaTiedosto(std::string_view otsikko, std::string_view suodatin) override;
  std::optional<std::string> KysyTallennettavaTiedosto(std::string_view otsikko, std::string_view suodatin,
                                                       std::string_view ehdotus) override;
  bool AvaaTiedosto(const std::string& tiedosto) override;
  std::string Paneeli() const override { return paneeli_; }
  void AsetaPaneeli(std::string teksti) override;
  void Odotusosoitin(bool paalla) override;
  void AnnaPiirtaa() override;

 private:
  void NaytaOdottavat();

  std::vector<Viestikooste> odottavat_;
  std::string paneeli_;
  std::function<void(const std::string&)> naytaPaneeli_;
};

/// Finnish for what the window toolkit itself shows: menus of fields, file dialogs, dates. Once, after QApplication is
/// made.
void AsennaSuomennos();
