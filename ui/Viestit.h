// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Save and Discard answer as Yes and No.
enum class Napit { Ok, KyllaEi, KyllaEiPeruuta, TallennaHylkaa, TallennaHylkaaPeruuta };
enum class Vastaus { Ok, Kylla, Ei, Peruuta };
enum class Vakavuus { Tieto, Varoitus, Virhe, Kysymys };

struct Viesti {
  std::string teksti;
  std::string otsikko;
  Vakavuus vakavuus = Vakavuus::Tieto;
  Napit napit = Napit::Ok;
  Vastaus oletus = Vastaus::Ok;  ///< button that Enter presses
  std::string kohde{};           ///< what it is about: "TK01", "Alapohja (Varasto)"; "" nothing in particular
  std::string tarkenne{};        ///< what stands behind a details button; "" none
};

/// True when the box has a button for this answer.
bool OnVastaus(Napit napit, Vastaus vastaus);

/// The one way to the person. The window program gives its own; without windows `KerataanViestit` stands in.
class Viestit {
 public:
  virtual ~Viestit() = default;

  /// Shows the box and gives the button pressed. Closing it counts as Cancel, in a box without one as No.
  virtual Vastaus Nayta(const Viesti& viesti) = 0;
  /// A line of text, or nothing when the person cancelled.
  virtual std::optional<std::string> KysyTeksti(std::string_view kehote, std::string_view otsikko,
                                                std::string_view oletus) = 0;
  /// A file's full name, or nothing when the person cancelled. `suodatin`: "Kuvaus (*.lvt)".
  virtual std::optional<std::string> KysyAvattavaTiedosto(std::string_view otsikko, std::string_view suodatin) = 0;
  /// `ehdotus` is the name proposed, without a folder.
  virtual std::optional<std::string> KysyTallennettavaTiedosto(std::string_view otsikko, std::string_view suodatin,
                                                               std::string_view ehdotus = {}) = 0;

  /// Opens the file in the program that the person's desktop has for its kind. False when there is none.
  virtual bool AvaaTiedosto(const std::string& tiedosto) = 0;

  /// Text of the first panel of the status bar.
  virtual std::string Paneeli() const = 0;
  virtual void AsetaPaneeli(std::string teksti) = 0;
  /// Hourglass on or off; counted, so that the pointer is normal when each "on" has had its "off".
  virtual void Odotusosoitin(bool paalla) = 0;
  /// Lets the windows paint; what the person types or presses is held back.
  virtual void AnnaPiirtaa() = 0;
};

/// The present way of this thread; `KerataanViestit` until another is set. A calculation on a thread of its own thus
/// never speaks past the windows: whoever started it takes its messages (ui/Hiljaa.h) and tells them.
Viestit& ViestitNyt();
/// Sets this thread's way, which must live until the next call; nullptr brings the first one back.
void AsetaViestit(Viestit* viestit);

/// Shows a message, about the object that is being calculated (ui/Laskentakohde.h).
void Ilmoita(Viesti viesti);
/// The same with an OK button.
void Ilmoita(std::string teksti, std::string otsikko = {}, Vakavuus vakavuus = Vakavuus::Tieto);
