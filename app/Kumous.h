// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <deque>
#include <memory>
#include <string>
#include <string_view>

class clsRakennus;

/// Undo and redo of a building by pictures of the whole of it: one for each committed change, bearing the change's
/// name. The earliest fall off when they take more memory than told; the last step can always be undone.
class Kumous {
 public:
  static constexpr std::size_t kMuistia = std::size_t{256} << 20;
  /// `muistia`: bytes of the pictures' objects at most.
  explicit Kumous(std::size_t muistia = kMuistia);
  ~Kumous();
  Kumous(const Kumous&) = delete;
  Kumous& operator=(const Kumous&) = delete;

  /// Another object, or nothing: forgets what there was.
  void Aloita(clsRakennus* rakennus);
  /// The object has changed: a step of that name from the former state to this one. The first state of an object is
  /// no step.
  void Kirjaa(std::string_view toiminto);
  /// The object stands in its file as it is: undoing and redoing back to here makes it saved again.
  void Tallennettiin();

  bool VoiKumota() const noexcept { return nyt_ > 0; }
  bool VoiTehdaUudelleen() const noexcept { return nyt_ + 1 < tilat_.size(); }
  /// Name of the change that the next undo takes back, and the next redo makes; "" when there is none.
  std::string Kumottava() const { return VoiKumota() ? tilat_[nyt_].toiminto : ""; }
  std::string Uudelleentehtava() const { return VoiTehdaUudelleen() ? tilat_[nyt_ + 1].toiminto : ""; }
  void Kumoa();
  void TeeUudelleen();

 private:
  struct Tila {
    std::string toiminto;  // that led here
    std::unique_ptr<clsRakennus> kuva;
    std::size_t koko;  // bytes
    bool tallennettu;
  };
  void LisaaTila(std::string_view toiminto);
  void Rajaa();
  void Siirry(std::size_t tila);

  clsRakennus* rakennus_ = nullptr;
  std::size_t muistia_;
  std::size_t kaytossa_ = 0;
  std::deque<Tila> tilat_;
  std::size_t nyt_ = 0;  // the state of the object
};
