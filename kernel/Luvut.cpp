// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Luvut.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace {

constexpr int kMerkitsevia = 15;  // digits that every double of that many decimal digits gives back unharmed

enum class Puolikas { PoisNollasta, Parilliseen };

/// A finite number in decimal digits: 0.d0d1d2... × 10^pilkku.
class Desimaaliluku {
 public:
  explicit Desimaaliluku(double arvo) : miinus_(std::signbit(arvo)) {
    std::array<char, 32> puskuri;
    const auto loppu = std::to_chars(puskuri.data(), puskuri.data() + puskuri.size(), std::fabs(arvo),
                                     std::chars_format::scientific, kMerkitsevia - 1)
                           .ptr;
    const std::string_view muoto(puskuri.data(), loppu);  // "d.ddde-07"
    const std::size_t e = muoto.find('e');
    numerot_.append(muoto, 0, 1).append(muoto, 2, e - 2);
    int eksponentti = 0;
    std::from_chars(muoto.data() + e + 2, loppu, eksponentti);
    if (muoto[e + 1] == '-') eksponentti = -eksponentti;
    pilkku_ = arvo == 0 ? 1 : eksponentti + 1;
  }

  void Pyorista(int desimaaleja, Puolikas tapa) {
    const int jaa = pilkku_ + desimaaleja;  // digits that stay
    if (jaa >= static_cast<int>(numerot_.size())) return;
    const bool ylos = jaa >= 0 && PyoristyyYlos(static_cast<std::size_t>(jaa), tapa);
    numerot_.resize(static_cast<std::size_t>(std::max(jaa, 0)));
    if (ylos) LisaaYksi();
    if (numerot_.find_first_not_of('0') == std::string::npos) miinus_ = false;
  }

  bool Miinus() const { return miinus_; }

  /// The digit of 10^paikka.
  char Numero(int paikka) const {
    const int i = pilkku_ - 1 - paikka;
    return i >= 0 && i < static_cast<int>(numerot_.size()) ? numerot_[static_cast<std::size_t>(i)] : '0';
  }

  int Kokonaisnumeroita() const { return std::max(pilkku_, 1); }

  double Arvo() const {
    const std::string teksti = (miinus_ ? "-0." : "0.") + numerot_ + "e" + std::to_string(pilkku_);
    double arvo = 0;
    std::from_chars(teksti.data(), teksti.data() + teksti.size(), arvo);
    return arvo;
  }

 private:
  bool PyoristyyYlos(std::size_t jaa, Puolikas tapa) const {
    const char ensimmainen = numerot_[jaa];
    if (ensimmainen != '5' || tapa == Puolikas::PoisNollasta) return ensimmainen >= '5';
    const bool tasan = numerot_.find_first_not_of('0', jaa + 1) == std::string::npos;
    return !tasan || (jaa > 0 && (numerot_[jaa - 1] - '0') % 2 == 1);
  }

  void LisaaYksi() {
    if (numerot_.find_first_not_of('9') == std::string::npos) {
      numerot_.insert(0, 1, '0');
      ++pilkku_;
    }
    const auto kasvava = numerot_.find_last_not_of('9');
    ++numerot_[kasvava];
    std::fill(numerot_.begin() + static_cast<std::ptrdiff_t>(kasvava) + 1, numerot_.end(), '0');
  }

  std::string numerot_;
  int pilkku_ = 0;
  bool miinus_;
};

struct Kuvio {
  explicit Kuvio(std::string_view kuvio)
      : desimaaliosa(kuvio.substr(std::min(kuvio.find('.'), kuvio.size()))),
        kokonaisia(static_cast<int>(std::count(kuvio.begin(), kuvio.end() - std::ssize(desimaaliosa), '0'))),
        ryhmittely(kuvio.find(' ') != std::string_view::npos) {}

  int Desimaaleja() const { return std::max(static_cast<int>(desimaaliosa.size()) - 1, 0); }
  int Pakollisia() const { return static_cast<int>(std::count(desimaaliosa.begin(), desimaaliosa.end(), '0')); }

  std::string_view desimaaliosa;  // with its point
  int kokonaisia;
  bool ryhmittely;
};

void LisaaKokonaisosa(std::string& tulos, const Desimaaliluku& luku, const Kuvio& kuvio) {
  for (int paikka = std::max(luku.Kokonaisnumeroita(), kuvio.kokonaisia) - 1; paikka >= 0; --paikka) {
    tulos += luku.Numero(paikka);
    if (kuvio.ryhmittely && paikka > 0 && paikka % 3 == 0) tulos += ' ';
  }
}

void LisaaDesimaalit(std::string& tulos, const Desimaaliluku& luku, const Kuvio& kuvio) {
  int desimaaleja = kuvio.Desimaaleja();
  while (desimaaleja > kuvio.Pakollisia() && luku.Numero(-desimaaleja) == '0') --desimaaleja;
  if (desimaaleja > 0) tulos += ',';
  for (int i = 1; i <= desimaaleja; ++i) tulos += luku.Numero(-i);
}

/// Length of the blank of any kind at the head of the text, 0 when there is none. U+00A0, U+2000 to U+200A, U+202F,
/// U+205F and U+3000 besides the ordinary one.
std::size_t ValinPituus(std::string_view teksti) {
  if (teksti.starts_with(' ')) return 1;
  if (teksti.starts_with("\u00A0")) return 2;
  const bool leveyksia = teksti.size() >= 3 && teksti.starts_with("\xE2\x80") &&
                         static_cast<unsigned char>(teksti[2]) >= 0x80 && static_cast<unsigned char>(teksti[2]) <= 0x8A;
  const bool muu = teksti.starts_with("\u202F") || teksti.starts_with("\u205F") || teksti.starts_with("\u3000");
  return leveyksia || muu ? 3 : 0;
}

std::string_view KarsiRivinvaihdot(std::string_view teksti) {
  constexpr std::string_view kReunat = "\t\r\n";
  const auto alku = teksti.find_first_not_of(kReunat);
  if (alku == std::string_view::npos) return {};
  return teksti.substr(alku, teksti.find_last_not_of(kReunat) - alku + 1);
}

std::string PoistaValit(std::string_view teksti) {
  std::string tulos;
  while (!teksti.empty()) {
    const std::size_t vali = ValinPituus(teksti);
    if (vali == 0) tulos += teksti.front();
    teksti.remove_prefix(std::max<std::size_t>(vali, 1));
  }
  return tulos;
}

/// Takes the sign off the head of the text; true when it is a minus.
bool OtaEtumerkki(std::string_view& teksti) {
  constexpr std::string_view kMiinus = "\u2212";
  const bool miinus = teksti.starts_with('-') || teksti.starts_with(kMiinus);
  if (teksti.starts_with(kMiinus)) {
    teksti.remove_prefix(kMiinus.size());
  } else if (miinus || teksti.starts_with('+')) {
    teksti.remove_prefix(1);
  }
  return miinus;
}

bool OnNumero(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string Muotoile(double arvo, std::string_view kuvioteksti) {
  if (!std::isfinite(arvo)) return "---";
  const Kuvio kuvio(kuvioteksti);
  Desimaaliluku luku(arvo);
  luku.Pyorista(kuvio.Desimaaleja(), Puolikas::PoisNollasta);
  std::string tulos;
  if (luku.Miinus()) tulos += '-';
  LisaaKokonaisosa(tulos, luku, kuvio);
  LisaaDesimaalit(tulos, luku, kuvio);
  return tulos;
}

std::optional<double> LueLuku(std::string_view teksti) {
  std::string siivottu = PoistaValit(KarsiRivinvaihdot(teksti));
  std::string_view luku = siivottu;
  const bool miinus = OtaEtumerkki(luku);
  const auto merkki = luku.find_first_of(",.");
  if (merkki != std::string_view::npos) siivottu[siivottu.size() - luku.size() + merkki] = '.';
  const auto numeroita = std::count_if(luku.begin(), luku.end(), OnNumero);
  if (numeroita == 0 || numeroita + (merkki != std::string_view::npos) != std::ssize(luku)) return std::nullopt;

  double arvo = 0;
  const auto tulos = std::from_chars(luku.data(), luku.data() + luku.size(), arvo);
  if (tulos.ec != std::errc{}) return std::nullopt;
  return miinus && arvo != 0 ? -arvo : arvo;
}

std::optional<double> LueLukuTaiNolla(std::string_view teksti) {
  return PoistaValit(KarsiRivinvaihdot(teksti)).empty() ? 0.0 : LueLuku(teksti);
}

std::string LyhinMuoto(double arvo) {
  std::array<char, 512> puskuri;
  const double ilman_miinusnollaa = arvo == 0 ? 0 : arvo;
  const auto tulos =
      std::to_chars(puskuri.data(), puskuri.data() + puskuri.size(), ilman_miinusnollaa, std::chars_format::fixed);
  return {puskuri.data(), tulos.ptr};
}

std::int32_t PyoristaKokonaisluvuksi(double arvo) {
  const double pyoristetty = std::nearbyint(arvo);
  using Rajat = std::numeric_limits<std::int32_t>;
  if (!(pyoristetty >= Rajat::min() && pyoristetty <= Rajat::max())) {
    throw std::out_of_range("Luku ei mahdu kokonaisluvun alueelle: " + LyhinMuoto(arvo));
  }
  return static_cast<std::int32_t>(pyoristetty);
}

double PyoristaParilliseen(double arvo, int desimaaleja) {
  if (!std::isfinite(arvo)) return arvo;
  Desimaaliluku luku(arvo);
  luku.Pyorista(desimaaleja, Puolikas::Parilliseen);
  return luku.Arvo();
}
