// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Lopetussignaali.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>

namespace {

std::array<int, 2> g_putki{-1, -1};

int AvaaPutki() {
  if (pipe2(g_putki.data(), O_CLOEXEC | O_NONBLOCK) != 0)
    throw std::system_error(errno, std::generic_category(), "pipe");
  return g_putki[0];
}

/// The session ends (its desktop, its terminal) or the person wants the program to end.
constexpr std::array kSignaalit{SIGTERM, SIGHUP, SIGINT};

void Kasittele(int) {
  const int virhe = errno;
  [[maybe_unused]] const ssize_t kirjoitettu = write(g_putki[1], "t", 1);
  errno = virhe;
}

}  // namespace

Lopetussignaali::Lopetussignaali(std::function<void()> kunTulee) : kuuntelija_(AvaaPutki(), QSocketNotifier::Read) {
  QObject::connect(&kuuntelija_, &QSocketNotifier::activated, &kuuntelija_, [kunTulee = std::move(kunTulee)] {
    char merkki;
    while (read(g_putki[0], &merkki, 1) > 0) continue;
    kunTulee();
  });
  for (const int signaali : kSignaalit) std::signal(signaali, Kasittele);
}

Lopetussignaali::~Lopetussignaali() {
  for (const int signaali : kSignaalit) std::signal(signaali, SIG_DFL);
  for (const int kahva : g_putki) close(kahva);
}
