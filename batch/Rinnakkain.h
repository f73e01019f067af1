// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <atomic>
#include <future>
#include <thread>
#include <vector>

/// Calls `laske(0)` to `laske(maara - 1)` on so many threads, and `valmis` with each result on the calling thread, in
/// order and as soon as it and those before it are there. An exception of `laske` comes out in the result's place.
template <class Laske, class Valmis>
void LaskeRinnakkain(std::size_t maara, unsigned saikeita, const Laske& laske, const Valmis& valmis) {
  using Tulos = decltype(laske(std::size_t{}));
  std::vector<std::promise<Tulos>> lupaukset(maara);
  std::atomic<std::size_t> seuraava = 0;
  const auto tee = [&](std::size_t i) {
    try {
      lupaukset[i].set_value(laske(i));
    } catch (...) {
      lupaukset[i].set_exception(std::current_exception());
    }
  };
  std::vector<std::jthread> saikeet;
  for (unsigned s = 0; s < saikeita && s < maara; ++s)
    saikeet.emplace_back([&] {
      for (std::size_t i; (i = seuraava++) < maara;) tee(i);
    });
  for (std::promise<Tulos>& lupaus : lupaukset) valmis(lupaus.get_future().get());
}
