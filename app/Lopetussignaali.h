// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QSocketNotifier>
#include <functional>

/// SIGTERM, SIGHUP or SIGINT as an event of the program: the signal's handler only writes to a socket, and the function
/// runs from the event loop, where it may do what it likes. One object at a time.
class Lopetussignaali {
 public:
  explicit Lopetussignaali(std::function<void()> kunTulee);
  ~Lopetussignaali();
  Lopetussignaali(const Lopetussignaali&) = delete;
  Lopetussignaali& operator=(const Lopetussignaali&) = delete;

 private:
  QSocketNotifier kuuntelija_;
};
