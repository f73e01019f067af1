// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Viestit.h"

/// The way to the person without windows: collects the messages and gives the answers laid ready, in their order.
/// Without one a box answers its default button, or the most cautious one when it has none: No. A question for a text
/// or a file is then cancelled.
class KerataanViestit : public Viestit {
 public:
  /// An answer that the box has no button for throws std::logic_error: the script doesn't fit the program.
  Vastaus Nayta(const Viesti& viesti) override;
  std::optional<std::string> KysyTeksti(std::string_view kehote, std::string_view otsikko,
                                        std::string_view oletus) override;
  std::optional<std::string> KysyAvattavaTiedosto(std::string_view otsikko, std::string_view suodatin) override;
  std::optional<std::string> KysyTallennettavaTiedosto(std::string_view otsikko, std::string_view suodatin,
                                                       std::string_view ehdotus) override;
  bool AvaaTiedosto(const std::string& tiedosto) override;
  std::string Paneeli() const override { return paneeli_; }
  void AsetaPaneeli(std::string teksti) override;
  void Odotusosoitin(bool paalla) override { odotuksia_ += paalla ? 1 : -1; }
  void AnnaPiirtaa() override { ++piirtoja_; }

  /// Lays an answer ready for the next box, question for a text, or file dialog (nothing = cancel).
  void AsetaSeuraavaVastaus(Vastaus vastaus) { vastaukset_.push_back(vastaus); }
  void AsetaSeuraavaTeksti(std::optional<std::string> teksti) { tekstit_.push_back(std::move(teksti)); }
  void AsetaSeuraavaTiedosto(std::optional<std::string> tiedosto) { tiedostot_.push_back(std::move(tiedosto)); }

  /// Whether there is a program that opens files; there is one at first.
  void AsetaAvaaja(bool on) { avaaja_ = on; }
  /// Files opened so far.
  const std::vector<std::string>& Avatut() const { return avatut_; }
  /// Boxes shown so far; a question for a text or a file is there too, with its prompt or title.
  const std::vector<Viesti>& Naytetyt() const { return naytetyt_; }
  /// How many boxes had this text in them.
  int Esiintymia(std::string_view osa) const;
  /// Answers that nobody has asked for yet.
  std::size_t VastauksiaJaljella() const { return vastaukset_.size() + tekstit_.size() + tiedostot_.size(); }
  /// Texts that the status panel has had, in order.
  const std::vector<std::string>& Paneelit() const { return paneelit_; }
  bool OdotusosoitinPaalla() const { return odotuksia_ > 0; }
  int Piirtoja() const { return piirtoja_; }
  void Tyhjenna() { *this = KerataanViestit(); }

 private:
  std::vector<Viesti> naytetyt_;
  std::deque<Vastaus> vastaukset_;
  std::deque<std::optional<std::string>> tekstit_;
  std::deque<std::optional<std::string>> tiedostot_;
  std::vector<std::string> avatut_;
  bool avaaja_ = true;
  std::string paneeli_;
  std::vector<std::string> paneelit_;
  int odotuksia_ = 0;
  int piirtoja_ = 0;
};
