// SPDX-License-Identifier: GPL-3.0-or-later
// Ventilation machine by machine.
#include <algorithm>

#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Luetteleminen.h"
#include "kernel/Luvut.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "tekstit/raportti.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viikkokuvaus.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr std::size_t kViikkokuvia = 4;

std::string PalveltavaTila(const clsRakennus& rakennus, const clsIVKone& kone) {
  const clsTila* tila = kone.LiittyyTilaansKey.Tyhja() ? nullptr : rakennus.Tilat.Etsi(kone.LiittyyTilaansKey);
  return tila ? tila->TilanNimi : Teksti(tekstit::kRaporttiviiva);
}

Raporttisolu Jos(bool on, double arvo, const char* kuvio) {
  return on ? Raporttisolu(Raporttiluku{arvo, kuvio}) : Raporttisolu(Teksti(tekstit::kRaporttiviiva));
}

Raporttitaulukko Koneet(clsRakennus& rakennus) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapKoneet),
                     .tunnus = "Koneet",
                     .sarakkeet = {{Teksti(tekstit::kKoneenTunnus), "", "", 2.2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapPalvelee), "", "", 2.2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapTulo), "m³/s", "tulo", 1.1, Summaus::Luvut},
                                   {Teksti(tekstit::kRapPoisto), "m³/s", "poisto", 1.1, Summaus::Luvut},
                                   {Teksti(tekstit::kRapLto), "%", "", 1},
                                   {Teksti(tekstit::kRapKayttoaika), "h/a", "", 1.3},
                                   {Teksti(tekstit::kJalkilammitys), "MWh/a", "jalki", 1.5, Summaus::Luvut},
                                   {Teksti(tekstit::kTalteenotto), "MWh/a", "lto", 1.5, Summaus::Luvut},
                                   {Teksti(tekstit::kRapPuhaltimet), "MWh/a", "puhaltimet", 1.5, Summaus::Luvut}}};
  for (clsIVKone& kone : rakennus.IVKoneet) {
    const clsIVKone::Vuosiluvut v = kone.VuodenLuvut();
    t.Lisaa({kone.KoneenTunnus, PalveltavaTila(rakennus, kone),
             Jos(kone.OnTulopuhallin(), kone.TuloIlmavirta11Teho, "0.00"),
             Jos(kone.OnPoistopuhallin(), kone.PoistoIlmavirta11Teho, "0.00"),
             Jos(kone.OnTalteenotto() && kone.LtoHyotysuhde > 0, kone.LtoHyotysuhde, "0"),
             Raporttiluku{v.kayntiaika, "### ##0"}, Raporttiluku{v.jalkilammitys, "### ##0.0"},
             Raporttiluku{v.talteenotto, "### ##0.0"}, Raporttiluku{v.puhaltimet, "### ##0.0"}});
  }
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  return t;
}

double Ilmavirta(const clsIVKone& kone) {
  return std::max(kone.OnTulopuhallin() ? kone.TuloIlmavirta11Teho : 0,
                  kone.OnPoistopuhallin() ? kone.PoistoIlmavirta11Teho : 0);
}

/// The week of a machine: of the first season that it runs in, which is told when it isn't the whole year.
Raporttikaavio Viikko(const clsIVKone& kone) {
  std::vector<Viikkokaynti> kaynnit;
  std::int32_t jakso = -1;
  for (const clsKayntiAika& k : kone.KayntiAikaYleistiedot) {
    if (!k.Kaytossa()) continue;
    if (jakso < 0) jakso = k.Jakso;
    if (k.Jakso == jakso) kaynnit.push_back({k.KayntiJaksojenLkm, k.Alkaa, k.Paattyy, k.TuloIlmavirtaProsentti});
  }
  return {Kaaviolaji::Viikko, kaynnit.empty() ? Kaaviotiedot{} : Viikkokuvaus(kone.KoneenTunnus, kaynnit)};
}

void LisaaViikot(Raportinosa& osa, const clsIVKoneet& koneet) {
  std::vector<const clsIVKone*> suurimmat;
  for (const clsIVKone& kone : koneet) suurimmat.push_back(&kone);
  std::ranges::stable_sort(suurimmat, std::greater(), [](const clsIVKone* k) { return Ilmavirta(*k); });
  std::vector<Raporttikaavio> viikot;
  for (const clsIVKone* kone : suurimmat) {
    Raporttikaavio viikko = Viikko(*kone);
    if (!viikko.tiedot.sarjat.empty() && viikot.size() < kViikkokuvia) viikot.push_back(std::move(viikko));
  }
  if (viikot.empty()) return;
  osa.Otsikko(Teksti(tekstit::kRapKayntiajat));
  for (std::size_t i = 0; i < viikot.size(); i += 2)
    osa.Kaaviot({viikot.begin() + static_cast<std::ptrdiff_t>(i),
                 viikot.begin() + static_cast<std::ptrdiff_t>(std::min(i + 2, viikot.size()))},
                55);
}

}  // namespace

void raportti::Ilmanvaihto(Raportinosa& osa, Raporttiaineisto& aineisto) {
  clsIVKoneet& koneet = aineisto.rakennus.IVKoneet;
  if (koneet.Count() == 0) return osa.Kappale(Teksti(tekstit::kRapEiKoneita));
  osa.Kappale(
      Lause(tekstit::kRapKonelause, {TekstiLuvulla(koneet.Count() == 1 ? tekstit::kRapYksiKone : tekstit::kRapKonetta,
                                                   static_cast<std::size_t>(koneet.Count())),
                                     Lukuna(koneet.Tuloilmavirtojen11Summa(), "0.00", "m³/s"),
                                     Lukuna(koneet.Poistoilmavirtojen11Summa(), "0.00", "m³/s"),
                                     Lukuna(koneet.VuotuinenIVjalkilammitysLampo(), "### ##0.0", "MWh"),
                                     Lukuna(koneet.VuotuinenPuhallinSahko(), "### ##0.0", "MWh")}));
  osa.Taulukko(Koneet(aineisto.rakennus));
  std::vector<std::string> irralliset;
  for (const clsIVKone* kone : koneet.ListaaTilaanLiittymattomatIVKoneet()) irralliset.push_back(kone->KoneenTunnus);
  if (!irralliset.empty())
    osa.Kappale(Lause(tekstit::kRapIrrallisetKoneet, {Luettele(irralliset)}), Raporttikappale::Huomautus);
  LisaaViikot(osa, koneet);
}
