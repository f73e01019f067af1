// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Reserves the model for one scope in which it isn't what the person made it: from the backup of a saving measure to
/// its restoring. Meanwhile no other command may touch it: menus, files and closing are refused. Scopes may be nested.
class Mallivaraus {
 public:
  Mallivaraus() noexcept;
  ~Mallivaraus();
  Mallivaraus(const Mallivaraus&) = delete;
  Mallivaraus& operator=(const Mallivaraus&) = delete;
};

/// True inside such a scope.
bool MalliVarattu() noexcept;
