// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/qt/Raportit.h"

#include <filesystem>

#include "bench/Parit.h"
#include "bench/vertailu/Mallirakennus.h"
#include "building/Yhteiset.h"
#include "pdf/Pdfraportti.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttikirja.h"
#include "ui/Tekstivarasto.h"

namespace mittaus {

namespace {

constexpr int kKertaa = 10;  // how much larger the larger object is
constexpr double kPdfTavoite = 4, kKasvutavoite = 1.3;

using Kirjoitin = void (*)(const Raportti&, const std::string&);

/// An object, and the making of its whole report.
class Raportoitava {
 public:
  explicit Raportoitava(int tiloja) : rakennus_(TeeMallirakennus(tiloja, kKasvunRakenteita)) {}

  double Tee(Kirjoitin kirjoita, const std::string& tiedosto, int kertoja = 1) {
    AsetaGlobaaliRakennus(rakennus_.get());
    std::filesystem::remove(tiedosto);
    return Kesto([&] {
      for (int i = 0; i < kertoja; ++i) kirjoita(TeeRaportti(*rakennus_), tiedosto);
    });
  }

 private:
  std::unique_ptr<clsRakennus> rakennus_;
};

void VaadiTiedostot(const std::string& a, const std::string& b) {
  for (const std::string& tiedosto : {a, b})
    if (std::filesystem::file_size(tiedosto) < 10000)
      throw std::runtime_error("the report wasn't written: " + tiedosto);
}

void PdfKirjaanVerrattuna(benchmark::State& state) {
  AlustaTekstit();
  Raportoitava kohde(kTiloja);
  const std::string pdf = Mittauskansio() + "raportti.pdf", kirja = Mittauskansio() + "raportti.xlsx";
  MittaaParit(
      state, kPdfTavoite, [&] { return kohde.Tee(KirjoitaPdfraportti, pdf); },
      [&] { return kohde.Tee(KirjoitaRaporttikirja, kirja); }, [&] { VaadiTiedostot(pdf, kirja); });
}

template <Kirjoitin Kirjoita>
void Kasvu(benchmark::State& state) {
  AlustaTekstit();
  Raportoitava suuri(kTiloja), pieni(kTiloja / kKertaa);
  const std::string a = Mittauskansio() + "suuri", b = Mittauskansio() + "pieni";
  MittaaParit(
      state, kKasvutavoite, [&] { return suuri.Tee(Kirjoita, a); }, [&] { return pieni.Tee(Kirjoita, b, kKertaa); },
      [&] { VaadiTiedostot(a, b); });
}

}  // namespace

void IlmoitaRaporttimittaukset() {
  IlmoitaParit("audit report as a PDF; the same as a workbook", PdfKirjaanVerrattuna);
  IlmoitaParit("report workbook of an object; ten of an object a tenth its size", Kasvu<KirjoitaRaporttikirja>);
  IlmoitaParit("report PDF of an object; ten of an object a tenth its size", Kasvu<KirjoitaPdfraportti>);
}

}  // namespace mittaus
