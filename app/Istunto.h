// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <string>
#include <utility>

#include "app/Kumous.h"
#include "building/clsRakennus.h"
#include "ui/Viestit.h"

/// The session: the one building that is being worked on, and the commands that begin, open, save and close it. Knows
/// no windows beyond what the model knows; its questions go through ViestitNyt().
///
/// 1. The common building (building/Yhteiset.h) is always this one, or nothing.
/// 2. The file of the open object bears the mark of a file in use; no other file does because of us.
/// 3. An unsaved object is dropped only after the person has said No to saving it.
/// 4. While a calculation has reserved the model, every command is refused with a message.
class Istunto {
 public:
  Istunto() = default;
  /// Drops the object without asking.
  ~Istunto();
  Istunto(const Istunto&) = delete;
  Istunto& operator=(const Istunto&) = delete;

  clsRakennus* Rakennus() const { return rakennus_.get(); }
  /// There is an object and its first model has been generated: it can be saved and computed.
  bool KohdeValmis() const { return rakennus_ && rakennus_->Perustiedot.OletusarvotLaskettu; }

  void mnuFileNew_Click();
  void mnuFileOpen_Click();
  void mnuFileSave_Click();
  void mnuFileSaveAs_Click();

  /// As Open, for a file chosen from the list of the latest ones.
  void AvaaViimeisin(const std::string& tiedosto);

  /// Opens the file in place of the present object. False, with a message, when the file isn't opened; the present
  /// object stays unless the file turned out to be bad only while it was being read.
  bool Avaa(const std::string& tiedosto);
  void NaytaPerustiedot();

  /// The program or the desktop's session is about to end: offers to save. True when it may end; the mark of the file
  /// is then gone.
  bool QueryUnload(bool istuntoPaattyy);

  /// Offers what an interrupted run left: the rescued object, then the backup of a save. True when one was opened.
  bool TarjoaJaaneet();
  /// Writes an unsaved object to AppPath + "~palautus.lvt", to be offered at the next start. A failure is silent: this
  /// is the last resort of a program that is being ended.
  void OtaTalteen();
  void PoistaTalteenotettu();

  /// To be called after each command: keeps what an undo would bring back.
  void SeuraaMuutoksia() { kumous_.Seuraa(KohdeValmis() ? rakennus_.get() : nullptr); }
  bool VoiKumota() const { return kumous_.Voi(); }
  /// Brings back the model as it was before the last committed dialog; open forms are closed.
  void mnuEditUndo_Click();
  /// A quiet moment: an unsaved object that has changed since the last time is written aside for recovery.
  void HiljainenHetki();

  /// Drops the object, if any, with its forms and the mark of its file.
  void SuljeKohde();

 private:
  std::string Tiedosto() const;
  bool VoiLuopua(const Viesti& kysymys);
  bool VoiVaihtaa();
  bool VoiAvata(const std::string& tiedosto) const;
  bool OnOmaTiedosto(const std::string& tiedosto) const;
  void Vaihda(std::unique_ptr<clsRakennus> rakennus);
  bool Lataa(const std::string& tiedosto);
  void LataaTalteenotettu(const std::string& tiedosto);
  bool TarjoaVarakopio();
  bool Tarjoa(const std::string& tiedosto, int kysymys);
  void TallennaNimella();
  bool Tallenna(const std::string& tiedosto);
  void AsetaTiedosto(const std::string& tiedosto);
  void Merkitse(const std::string& tiedosto);
  void PoistaMerkki();

  std::unique_ptr<clsRakennus> rakennus_;
  Kumous kumous_;
  /// What tells whether the object has changed since it was last written aside.
  std::pair<int, double> Tila() const { return {rakennus_->Muutoksia(), rakennus_->MuuLampo}; }
  std::pair<int, double> talteenOtettu_;
  std::string merkitty_;  // the file that bears our mark
};

/// Caption of the main window: the program's name and `teksti`; with an empty text the open project file, shortened.
std::string PaaikkunanOtsikko(const std::string& teksti);
