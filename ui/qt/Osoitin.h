// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The normal pointer for one scope, in which the program waits for the person though an hourglass may be on around it.
class NormaaliOsoitin {
 public:
  NormaaliOsoitin();
  ~NormaaliOsoitin();
  NormaaliOsoitin(const NormaaliOsoitin&) = delete;
  NormaaliOsoitin& operator=(const NormaaliOsoitin&) = delete;

 private:
  int tiimalaseja_ = 0;
};
