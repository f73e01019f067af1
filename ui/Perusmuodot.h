// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <string>
#include <vector>

struct VoikkoHandle;

/// Base forms of Finnish words by the dictionary of the Voikko library, in small letters: "Yläkattojen" gives
/// "yläkatto". Without the dictionary (package voikko-fi) no word has one.
class Perusmuodot {
 public:
  Perusmuodot();
  /// A word may be the form of several words; an unknown one is of none.
  std::vector<std::string> Hae(const std::string& sana) const;

 private:
  std::unique_ptr<VoikkoHandle, void (*)(VoikkoHandle*)> sanasto_;
};
