// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Rinnakkain.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <memory>
#include <system_error>
#include <vector>

namespace {

struct Sulkija {
  void operator()(std::FILE* virta) const noexcept { std::fclose(virta); }
};
using Virta = std::unique_ptr<std::FILE, Sulkija>;

[[noreturn]] void NostaJarjestelmavirhe(const char* kutsu) {
  throw std::system_error(errno, std::generic_category(), kutsu);
}

void Kirjoita(std::FILE* virta, const std::string& teksti) {
  const std::size_t pituus = teksti.size();
  std::fwrite(&pituus, sizeof pituus, 1, virta);
  std::fwrite(teksti.data(), 1, pituus, virta);
}

bool Lue(std::FILE* virta, std::string& teksti) {
  std::size_t pituus = 0;
  if (std::fread(&pituus, sizeof pituus, 1, virta) != 1) return false;
  teksti.resize(pituus);
  return std::fread(teksti.data(), 1, pituus, virta) == pituus;
}

/// A process that computes every n:th piece, and the pipe that its results come by.
class Tyoprosessi {
 public:
  Tyoprosessi(std::size_t eka, std::size_t askel, std::size_t maara,
              const std::function<Laskettu(std::size_t)>& laske) {
    int putki[2];
    if (pipe(putki) != 0) NostaJarjestelmavirhe("pipe");
    std::fflush(nullptr);  // what is waiting in buffers is written here only
    tunnus_ = fork();
    if (tunnus_ < 0) NostaJarjestelmavirhe("fork");
    if (tunnus_ == 0) {
      close(putki[0]);
      Laske(Virta(fdopen(putki[1], "wb")), eka, askel, maara, laske);
    }
    close(putki[1]);
    virta_.reset(fdopen(putki[0], "rb"));
  }
  ~Tyoprosessi() {
    virta_.reset();
    waitpid(tunnus_, nullptr, 0);
  }
  Tyoprosessi(const Tyoprosessi&) = delete;
  Tyoprosessi& operator=(const Tyoprosessi&) = delete;

  Laskettu Seuraava() {
    Laskettu laskettu;
    std::string onnistui;
    if (!Lue(virta_.get(), laskettu.tulos) || !Lue(virta_.get(), laskettu.virheet) || !Lue(virta_.get(), onnistui))
      return {"", "lumivirta-laske: laskenta päättyi kesken.\n", false};
    laskettu.onnistui = onnistui == "1";
    return laskettu;
  }

 private:
  [[noreturn]] static void Laske(Virta virta, std::size_t eka, std::size_t askel, std::size_t maara,
                                 const std::function<Laskettu(std::size_t)>& laske) {
    for (std::size_t i = eka; i < maara; i += askel) {
      const Laskettu laskettu = laske(i);
      Kirjoita(virta.get(), laskettu.tulos);
      Kirjoita(virta.get(), laskettu.virheet);
      Kirjoita(virta.get(), laskettu.onnistui ? "1" : "0");
      std::fflush(virta.get());
    }
    virta.reset();
    _exit(0);  // what the parent has opened is the parent's to close
  }

  pid_t tunnus_;
  Virta virta_;
};

}  // namespace

void LaskeRinnakkain(std::size_t maara, unsigned prosesseja, const std::function<Laskettu(std::size_t)>& laske,
                     const std::function<void(const Laskettu&)>& valmis) {
  const std::size_t n = std::min<std::size_t>(prosesseja, maara);
  std::vector<std::unique_ptr<Tyoprosessi>> prosessit;
  for (std::size_t i = 0; n > 1 && i < n; ++i) prosessit.push_back(std::make_unique<Tyoprosessi>(i, n, maara, laske));
  for (std::size_t i = 0; i < maara; ++i) valmis(prosessit.empty() ? laske(i) : prosessit[i % n]->Seuraava());
}
