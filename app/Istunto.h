// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "app/Kumous.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Palautuskopio.h"
#include "ui/Viestit.h"

/// The session: the one building that is being worked on, and the commands that begin, open, save and close it. Knows
/// no windows beyond what the model knows; its questions go through ViestitNyt().
///
/// 1. The common building (building/Yhteiset.h) is always this one, or nothing.
/// 2. The file of the open object bears the mark of a file in use; no other file does because of us.
/// 3. An unsaved object is dropped only after the person has said No to saving it.
/// 4. While a calculation has reserved the model, every command is refused with a message.
/// 5. Each committed change (clsRakennus::Muuttui) is a step of undo. What tells of the file is no part of a step.
/// 6. What isn't in the object's file is in this run's recovery copy, from one quiet moment to the next.
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
  /// Closes the object, after offering to save it.
  void mnuSuljeKohde_Click();

  /// As Open, for a file chosen from the list of the latest ones.
  void AvaaViimeisin(const std::string& tiedosto);

  /// Opens the file in place of the present object. False, with a message, when the file isn't opened; the present
  /// object stays unless the file turned out to be bad only while it was being read.
  bool Avaa(const std::string& tiedosto);
  void NaytaPerustiedot();

  /// The program or the desktop's session is about to end: offers to save. True when it may end; the mark of the file
  /// is then gone.
  bool QueryUnload(bool istuntoPaattyy);

  /// Offers what interrupted runs left: their rescued objects, then the backup of a save. True when one was opened.
  bool TarjoaJaaneet();
  /// A quiet moment, perhaps inside a dialog: what differs from the object's file and isn't yet safe is written to this
  /// run's recovery copy. A failure is told in the status panel, once until it works again.
  void HiljainenHetki();

  /// The steps that the person can take back and make again.
  const Kumous& Askeleet() const { return kumous_; }
  void mnuEditUndo_Click();
  void mnuEditRedo_Click();

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
  bool TarjoaTalteenotettu(Palautuskopio& kopio);
  void AvaaTalteenotettu(Palautuskopio& kopio);
  void JatkaTallentamatta(const std::string& tiedosto);
  bool TarjoaVarakopio();
  void TallennaNimella();
  bool SaaKorvata(const std::string& tiedosto) const;
  bool Tallenna(const std::string& tiedosto, const Tiedostotunnus* odotettu);
  void TiedostossaNyt();
  void AsetaTiedosto(const std::string& tiedosto);
  void PaivitaOtsikko() const;
  void Merkitse(const std::string& tiedosto);
  void PoistaMerkki();

  std::unique_ptr<clsRakennus> rakennus_;
  Kumous kumous_;
  Palautuskopio palautus_;
  std::uint64_t tiedostossa_ = 0, talteenOtettu_ = 0;  // fingerprints; 0 of nothing
  bool palautusEpaonnistui_ = false;
  std::string merkitty_;  // the file that bears our mark
};

/// Caption of the main window: the program's name and `teksti`; with an empty text the open project file, shortened.
std::string PaaikkunanOtsikko(const std::string& teksti);
