// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Luettelo.h"

class Lomakeikkuna;

/// Kinds of control, named as in TyypinNimi.
enum class Ohjaintyyppi {
  Label,
  TextBox,
  ComboBox,
  CheckBox,
  OptionButton,
  CommandButton,
  Frame,
  TabStrip,
  ListView,
  MSChart,
  Image
};

/// "Label", "TextBox", ...
std::string_view TyypinNimi(Ohjaintyyppi tyyppi);

/// The control type that a widget class of a form file stands for; false when the class is no control (a plain page).
bool TyyppiLuokasta(std::string_view luokka, Ohjaintyyppi& tyyppi);

/// A trait of a control that an adapter shows on the screen.
enum class Piirre {
  Teksti,
  Vihje,
  Kaytossa,
  Lukittu,
  Nakyva,
  Valittu,
  Rivit,
  Summat,
  Avattu,
  Indeksi,
  Osat,
  Korostus,
  Kaavio,
  Kuva,
  Kohdistus,
  Tekstivalinta
};

/// A series of a column chart: a value for each column.
struct Kaaviosarja {
  static constexpr int kViiva = -1;
  std::string nimi;
  std::vector<double> arvot;
  int pino = 0;  ///< which of the columns side by side it is stacked in; kViiva: drawn as a line
};

/// What a chart shows. A pie or a stacked bar has a name and a value for each part; a column chart a name for each
/// place of its axis, series and their unit; curves the name of their axis, its places in `arvot`, series and their
/// unit. A waterfall has a name for each row, its unit, and series: the first has the levels at the first and the last
/// row, the others the changes of the rows between, whose sum leads from the one to the other.
struct Kaaviotiedot {
  std::string otsikko;
  std::vector<std::string> nimet;
  std::vector<double> arvot{};
  std::vector<Kaaviosarja> sarjat{};
  std::string yksikko{};
  double taysi = 0;                   ///< of a stacked bar: what fills it; 0: the sum of its parts
  std::vector<std::string> reunat{};  ///< of a section: what lies left and right of it
};

/// Where the texts of a column stand; a column of numbers stands at the right edge in any case.
enum class Tasaus { Vasen, Keski, Oikea };

/// A page of a tab control or a column of a list.
struct Osa {
  std::string otsikko;
  std::string vihje{};
  std::string tag{};       ///< design-time text: id of the caption
  std::string vihjetag{};  ///< design-time text: id of the tool tip
  bool kaytossa = true;    ///< the person can open the page
  Tasaus tasaus = Tasaus::Vasen;
  /// Of a column: its share of the list's width, 0 hidden; without one, as wide as its contents need.
  std::optional<double> leveys{};
  std::string nimi{};  ///< of a page: the container of the controls on it

  bool Nakyva() const { return leveys != 0.0; }
};

/// A column as a form file tells it in the list's property Sarakkeet: "id" or "id,oikea" or "id,keski".
Osa Sarakkeeksi(std::string_view kuvaus);

/// Top left corner of a control's place on its form, in twips (15 to a pixel of 96 dpi). Controls of one row have one
/// top, whatever their heights.
struct Lomakepaikka {
  double vasen = 0;
  double yla = 0;
};

/// What a form file tells of a control.
struct Ohjainkuvaus {
  std::string nimi;
  Ohjaintyyppi tyyppi = Ohjaintyyppi::Label;
  std::string tag;       ///< dynamic property Tag
  std::string vihjetag;  ///< dynamic property ToolTipText
  std::string teksti;    ///< design-time text, for what is shown before the form is translated
  std::string sailio;    ///< name of the container; option buttons of one container exclude each other
  std::string kumppani;  ///< of a label: name of the control that it names (buddy)
  std::string nimio;     ///< dynamic property Nimio: names of the controls whose captions name this one
  bool lukittu = false;  ///< the person can't write in it
  bool kaytossa = true;
  bool nakyva = true;
  std::vector<Osa> osat;
  Lomakepaikka paikka{};  ///< without a screen: where the layout of the form file puts it
};

/// One control of an open form. It holds all that the program knows of it; an adapter derives from it and shows what
/// changes (`Paivita`). The program's own changes are silent; only the functions named Kayttaja..., which the adapter
/// calls for what the person does, raise events.
class Ohjain {
 public:
  Ohjain(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus);
  virtual ~Ohjain() = default;
  Ohjain(const Ohjain&) = delete;
  Ohjain& operator=(const Ohjain&) = delete;

  const std::string& Nimi() const { return kuvaus_.nimi; }
  Ohjaintyyppi Tyyppi() const { return kuvaus_.tyyppi; }
  const std::string& Tag() const { return kuvaus_.tag; }
  const std::string& Vihjetag() const { return kuvaus_.vihjetag; }
  const std::string& Sailio() const { return kuvaus_.sailio; }
  const std::string& Kumppani() const { return kuvaus_.kumppani; }
  const std::string& Nimio() const { return kuvaus_.nimio; }
  /// The person can read and copy the field but not write in it.
  bool Lukittu() const { return kuvaus_.lukittu; }
  void Lukittu(bool lukittu);
  const Lomakeikkuna& Ikkuna() const { return ikkuna_; }

  /// Text of a field, caption of any other control.
  const std::string& Teksti() const { return teksti_; }
  /// Fills silently. A field in which the person is writing takes the text when it loses the focus. `luku`: the number
  /// of which the text is the shown form, if it is one.
  void Teksti(std::string teksti, std::optional<double> luku = {});
  /// The number with which the field was filled last.
  std::optional<double> TaytettyLuku() const { return taytettyLuku_; }
  /// True when the person has changed the text, the choice or the tick after the program set it last.
  bool Muuttunut() const;
  /// What the person has written has been read: the field can be filled at once, though the focus may still be there.
  void PaataMuokkaus() { muokataan_ = false; }

  const std::string& Vihje() const { return vihje_; }
  void Vihje(std::string vihje);
  bool Kaytossa() const { return kuvaus_.kaytossa; }
  void Kaytossa(bool kaytossa);
  /// The control's own flag, whatever its page or frame.
  bool Nakyva() const { return kuvaus_.nakyva; }
  void Nakyva(bool nakyva);
  /// Where it lies at present, measured from the form's corner, also in a frame or on a page.
  virtual Lomakepaikka Sijainti() const { return kuvaus_.paikka; }
  /// A text field shows its text in the colour that catches the eye.
  bool Korostettu() const { return korostettu_; }
  void Korostettu(bool korostettu);
  /// State of a check box or an option button. Setting an option button clears the others of its container.
  bool Valittu() const { return valittu_; }
  void Valittu(bool valittu);

  /// Rows of a choice list (one cell) or of a list (a cell per column), and how they stand on the screen.
  const Luettelo& Lista() const { return lista_; }
  const Taulukko& Rivit() const { return lista_.Solut(); }
  /// Rows without keys; nothing is chosen afterwards.
  void Rivit(Taulukko rivit);
  /// Rows and sums. With keys, the row chosen before stays chosen; when it is no more, the one that has come to its
  /// place; the first one, when none was. Without keys none is chosen.
  void Tayta(Luettelosisalto sisalto);
  /// Other cells for one row, which stays where it is.
  void Rivi(int indeksi, std::vector<std::string> solut);
  void Vaihda(int indeksi, Luettelorivi rivi);
  /// Chosen row, or page of a tab control; -1 none. Outside the rows it becomes -1. A row keeps its number wherever a
  /// sorted list shows it.
  int Indeksi() const { return indeksi_; }
  void Indeksi(int indeksi);
  /// Sums below the rows of a list: always last, never chosen. Empty: none.
  const std::vector<std::string>& Summarivi() const { return lista_.Summat(); }
  void Summarivi(std::vector<std::string> solut);
  /// Headings and these rows of the list in the order of the screen, for the clipboard; all rows and the sums when none
  /// is told. Hidden columns are left out.
  std::string RivitTekstina(const std::vector<int>& rivit) const;

  const std::vector<Osa>& Osat() const { return kuvaus_.osat; }
  /// A list can be given other columns, also another number of them; it is filled afterwards.
  void Osat(std::vector<Osa> osat);

  const Kaaviotiedot& Kaavio() const { return kaavio_; }
  void Kaavio(Kaaviotiedot kaavio);
  /// Name of the program's own picture that an image shows; "" none.
  const std::string& Kuva() const { return kuva_; }
  void Kuva(std::string nimi);
  /// Puts what the control shows on the clipboard: a chart as a picture and figures, a list as lines with tabs. False
  /// when the adapter has no clipboard.
  virtual bool KopioiLeikepoydalle() { return false; }
  /// Writes the control's picture in the format of the file's extension. False when it can't be written.
  virtual bool TallennaKuva(const std::string&) { return false; }

  /// Gives the focus; a hidden page of a tab control is brought to front first.
  void Kohdista() { Paivita(Piirre::Kohdistus); }
  /// Selects the whole text.
  void ValitseTeksti() { Paivita(Piirre::Tekstivalinta); }

  std::function<void()> Muuttui;    ///< text written, row or page chosen
  std::function<void()> Klikattu;   ///< button pressed, box ticked, row double-clicked
  std::function<void()> Poistuttu;  ///< focus left the control
  // Of a list:
  std::function<void(const Taulukko&)> Liitetty;                                  ///< rows pasted
  std::function<void()> Lisattava;                                                ///< key for a new row
  std::function<void()> Poistettava;                                              ///< key that removes the chosen row
  std::function<void(int sarake)> OtsikkoaPainettu;                               ///< in place of sorting by it
  std::function<void()> HaaraAvattu;                                              ///< or closed
  std::function<void(int rivi, int sarake, const std::string& teksti)> Muokattu;  ///< written in a cell
  std::function<bool(int rivi, int ylempi)> SaaSiirtaa;                           ///< a row may hang under another one
  std::function<void(int rivi, int ylempi)> Siirretty;                            ///< the person has dragged it there
  std::function<bool(int rivi, int edellinen)> SaaJarjestaa;                      ///< a row may be put behind another
  std::function<void(int rivi, int edellinen)> Jarjestetty;                       ///< the person has put it there
  std::function<void(int rivi, bool rasti)> Rastitettu;                           ///< the person has ticked its box

  void KayttajaKirjoittaa(std::string teksti);
  void KayttajaValitsee(int indeksi);
  void KayttajaPainaa();
  void KayttajaPoistuu();
  /// Sorts a list by the column; once more the other way round, a third time back to the order given. A list that has
  /// something else for its headings to do doesn't sort.
  void KayttajaLajittelee(int sarake);
  void KayttajaLiittaa(std::string_view leikepoyta);
  void KayttajaLisaa() { Nosta(Lisattava); }
  void KayttajaPoistaa();
  /// Opens or closes the branch under a row.
  void KayttajaAvaa(int rivi, bool auki);
  /// Writes in a cell. The cell shows what the listener makes of the text.
  void KayttajaMuokkaa(int rivi, int sarake, const std::string& teksti);
  /// True when the row can be dragged under the other one, or to the top for -1.
  bool VoiSiirtaa(int rivi, int ylempi) const;
  void KayttajaSiirtaa(int rivi, int ylempi);
  /// True when the row can be put right behind the other one, or first for -1. Rows of a list that sorts stay.
  bool VoiJarjestaa(int rivi, int edellinen) const;
  void KayttajaJarjestaa(int rivi, int edellinen);
  /// Keys that put the chosen row one place up or down.
  void KayttajaJarjestaa(bool ylos);
  /// Ticks the box of a row, or clears it. The row shows what the listener fills it with.
  void KayttajaRastittaa(int rivi);

 protected:
  /// Shows the trait on the screen; nothing to show without windows.
  virtual void Paivita(Piirre piirre);
  /// Shows the cells and traits of one row.
  virtual void PaivitaRivi(int) {}

 private:
  void Nosta(const std::function<void()>& tapahtuma);
  void TyhjennaMuutRyhmassa();
  void AsetaValittu(bool valittu);
  int RajattuIndeksi(int indeksi) const;

  Lomakeikkuna& ikkuna_;
  Ohjainkuvaus kuvaus_;
  std::string teksti_;
  std::string taytetty_;  // as filled last
  std::optional<double> taytettyLuku_;
  bool muokataan_ = false;  // the person has written since the focus came
  bool odottaa_ = false;    // filled while being written in
  std::string vihje_;
  bool korostettu_ = false;
  bool valittu_ = false;
  bool taytettyValinta_ = false;
  Luettelo lista_;
  int indeksi_ = -1;
  int taytettyIndeksi_ = -1;
  Kaaviotiedot kaavio_;
  std::string kuva_;
};
