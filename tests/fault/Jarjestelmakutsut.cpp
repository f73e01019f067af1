// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fault/Jarjestelmakutsut.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>

namespace kutsut {
namespace {

std::atomic<Isku> g_isku = Isku::Ei;
std::atomic<int> g_laskuri = 0;
int g_monesko = 0;
int g_virhe = 0;
int g_oikeusvirhe = 0;

bool Osuu() {
  const Isku isku = g_isku;
  if (isku == Isku::Ei) return false;
  const int nyt = ++g_laskuri;
  return nyt == g_monesko || (isku == Isku::PysyvaVirhe && nyt > g_monesko);
}

int Iske() {
  if (g_isku == Isku::Tappo) kill(getpid(), SIGKILL);
  errno = g_virhe;
  return -1;
}

template <class... A>
long Kutsu(long numero, A... arvot) {
  return Osuu() ? Iske() : syscall(numero, arvot...);
}

int Avaa(const char* tiedosto, int tapa, va_list loput) {
  const int oikeudet = tapa & O_CREAT ? va_arg(loput, int) : 0;
  return static_cast<int>(Kutsu(SYS_openat, AT_FDCWD, tiedosto, tapa, oikeudet));
}

}  // namespace

void Aseta(Isku isku, int monesko, int virhe) {
  g_laskuri = 0;
  g_monesko = monesko;
  g_virhe = virhe;
  g_isku = isku;
}

void EstaOikeudet(int virhe) { g_oikeusvirhe = virhe; }

template <class... A>
int Oikeuskutsu(long numero, A... arvot) {
  if (!g_oikeusvirhe) return static_cast<int>(Kutsu(numero, arvot...));
  errno = g_oikeusvirhe;
  return -1;
}

int Lopeta() {
  g_isku = Isku::Ei;
  return g_laskuri;
}

}  // namespace kutsut

extern "C" {

int open(const char* tiedosto, int tapa, ...) {
  va_list loput;
  va_start(loput, tapa);
  const int kahva = kutsut::Avaa(tiedosto, tapa, loput);
  va_end(loput);
  return kahva;
}

int open64(const char* tiedosto, int tapa, ...) {
  va_list loput;
  va_start(loput, tapa);
  const int kahva = kutsut::Avaa(tiedosto, tapa, loput);
  va_end(loput);
  return kahva;
}

ssize_t write(int kahva, const void* tavut, size_t n) {
  if (!kutsut::Osuu()) return syscall(SYS_write, kahva, tavut, n);
  syscall(SYS_write, kahva, tavut, n / 2);
  return kutsut::Iske();
}

ssize_t pwrite64(int kahva, const void* tavut, size_t n, off64_t kohta) {
  if (!kutsut::Osuu()) return syscall(SYS_pwrite64, kahva, tavut, n, kohta);
  syscall(SYS_pwrite64, kahva, tavut, n / 2, kohta);
  return kutsut::Iske();
}

ssize_t copy_file_range(int mista, off64_t* kohta, int mihin, off64_t* toinen, size_t n, unsigned tapa) {
  if (!kutsut::Osuu()) return syscall(SYS_copy_file_range, mista, kohta, mihin, toinen, n, tapa);
  syscall(SYS_copy_file_range, mista, kohta, mihin, toinen, std::min<size_t>(n, 10000), tapa);
  return kutsut::Iske();
}

int fsync(int kahva) { return static_cast<int>(kutsut::Kutsu(SYS_fsync, kahva)); }
int fdatasync(int kahva) { return static_cast<int>(kutsut::Kutsu(SYS_fdatasync, kahva)); }
int ftruncate64(int kahva, off64_t koko) noexcept {
  return static_cast<int>(kutsut::Kutsu(SYS_ftruncate, kahva, koko));
}
int fchmod(int kahva, mode_t oikeudet) noexcept { return kutsut::Oikeuskutsu(SYS_fchmod, kahva, oikeudet); }
int fchown(int kahva, uid_t omistaja, gid_t ryhma) noexcept {
  return kutsut::Oikeuskutsu(SYS_fchown, kahva, omistaja, ryhma);
}
int link(const char* vanha, const char* uusi) noexcept {
  return static_cast<int>(kutsut::Kutsu(SYS_link, vanha, uusi));
}
int unlink(const char* tiedosto) noexcept { return static_cast<int>(kutsut::Kutsu(SYS_unlink, tiedosto)); }
int rename(const char* vanha, const char* uusi) noexcept {
  return static_cast<int>(kutsut::Kutsu(SYS_rename, vanha, uusi));
}
}
