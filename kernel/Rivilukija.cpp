// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Rivilukija.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

#include "kernel/Kirjainkoko.h"

namespace {

/// No tree of the program is nearly as deep; a damaged file might be.
constexpr int kEnimmaissyvyys = 100;
constexpr std::size_t kEsimerkkeja = 20;
constexpr std::size_t kEsimerkinPituus = 80;

bool OnMerkki(std::string_view teksti) {
  return teksti == merkit::kOlio || teksti == merkit::kMetodi || teksti == merkit::kViittaus;
}

std::string Arvoteksti(const ArvoNakyma& nakyma) {
  std::string teksti;
  Muunna(nakyma, teksti);
  if (teksti.size() > kEsimerkinPituus) teksti.resize(kEsimerkinPituus);
  return teksti;
}

bool Aseta(Olio& olio, const Jasen& jasen, const ArvoNakyma& arvo) try {
  return jasen.kirjoita(olio, arvo);
} catch (const std::exception&) {
  return false;
}

Olio* HaeTaiLuo(Olio& olio, const Jasen& jasen) try {
  Olio* lapsi = jasen.olio(olio);
  return lapsi || !jasen.luo ? lapsi : &jasen.luo(olio);
} catch (const std::exception&) {
  return nullptr;
}

std::vector<std::string> TiedostonTaulut(Tietokanta& kanta) {
  std::vector<std::string> nimet;
  for (Kysely taulut(kanta, "SELECT name FROM sqlite_master WHERE type='table'"); taulut.Seuraava();)
    nimet.emplace_back(taulut.Teksti(0));
  return nimet;
}

}  // namespace

/// A column that may tell of a member object.
struct Rivilukija::Oliosarake {
  int paikka;
  const Jasen* jasen;  // null: the class has no such member
  std::string nimi;
};

/// A class's table in a file: columns resolved to members once, and the way to the next wanted row.
class Rivilukija::Taulu {
 public:
  struct Sarake {
    int paikka;
    const Jasen* jasen;
    bool teksti;
  };
  Taulu(Tietokanta& kanta, const Luokka& luokka, Haku haku)
      : luokka_(luokka),
        kanta_(kanta),
        rivit_(kanta, "SELECT * FROM " + Lainaa(luokka.Nimi()) +
                          (haku == Haku::Hakemistosta ? " WHERE rowid=?" : " ORDER BY rowid")) {
    for (int i = 0; i < rivit_.Sarakkeita(); ++i) LisaaSarake(i);
    if (objId_ < 0 || parentId_ < 0 || jasen_ < 0 || jarjestys_ < 0)
      throw Projektivirhe(Projektivirhe::Syy::Vaurioitunut,
                          kanta.Tiedosto() + ": taulusta " + std::string(luokka.Nimi()) + " puuttuu sarakkeita");
    if (haku == Haku::Hakemistosta)
      RakennaHakemisto();
    else
      rivilla_ = rivit_.Seuraava();
  }

  /// Moves to the row of that place. In the order of the rows: to the next row, if it is the one.
  bool Siirry(const Rivipaikka& paikka) {
    return hakemisto_ ? SiirryHakemistossa(paikka) : SeuraavaOn(paikka) && SeuraavaJarjestys() == paikka.jarjestys;
  }

  /// Moves to the next item of that parent, whatever its place; gives the place.
  std::optional<int> SiirryAlkioon(const Rivipaikka& paikka) {
    if (hakemisto_) return SiirrySeuraavaanHakemistossa(paikka);
    return SeuraavaOn(paikka) ? std::optional(SeuraavaJarjestys()) : std::nullopt;
  }

  /// The row has been read. In the order of the rows: goes on to the next one.
  void Kaytetty() {
    if (!hakemisto_) rivilla_ = rivit_.Seuraava();
  }

  /// Rows that nobody has asked for; in the order of the rows: 1 or 0.
  int Kayttamatta() const noexcept { return hakemisto_ ? kayttamatta_ : rivilla_; }

  const Luokka& OmaLuokka() const noexcept { return luokka_; }
  const std::vector<Sarake>& Arvot() const noexcept { return arvot_; }
  const std::vector<Oliosarake>& Oliot() const noexcept { return oliot_; }
  /// Columns that the class has no member for.
  const std::vector<std::string>& Vieraat() const noexcept { return vieraat_; }
  void Nayta(int sarake, ArvoNakyma& nakyma) const noexcept { rivit_.Nayta(sarake, nakyma); }
  std::string_view Teksti(int sarake) const noexcept { return sarake < 0 ? std::string_view{} : rivit_.Teksti(sarake); }
  std::string_view ObjId() const noexcept { return Teksti(objId_); }
  int InstanssiId() const noexcept { return instanssiId_; }
  int Avain() const noexcept { return avain_; }

 private:
  struct Rivi {
    std::int64_t rowid;
    int jarjestys;
    bool kaytetty = false;
  };
  struct Sisarukset {
    std::vector<Rivi> rivit;
    std::size_t seuraava = 0;
  };
  using Hakemisto = std::unordered_map<std::string, Sisarukset>;  // by parent and member name

  void LisaaSarake(int paikka) {
    const std::string_view nimi = rivit_.SarakkeenNimi(paikka);
    if (int* kiintea = KiinteaSarake(nimi)) {
      *kiintea = paikka;
      return;
    }
    const Jasen* jasen = luokka_.Etsi(nimi);
    if (!jasen) vieraat_.push_back(std::string(luokka_.Nimi()) + "." + std::string(nimi));
    const bool teksti = rivit_.OnTekstisarake(paikka);
    if (jasen && jasen->kirjoita)
      arvot_.push_back({paikka, jasen, teksti});
    else if (teksti && !(jasen && !jasen->OnOlio()))
      oliot_.push_back({paikka, jasen, std::string(nimi)});
  }

  int* KiinteaSarake(std::string_view nimi) {
    if (SamaNimi(nimi, "ObjID")) return &objId_;
    if (SamaNimi(nimi, "ParentID")) return &parentId_;
    if (SamaNimi(nimi, "MyRealNameInParentObj")) return &jasen_;
    if (SamaNimi(nimi, "OrderID")) return &jarjestys_;
    if (SamaNimi(nimi, "InstanssiId")) return &instanssiId_;
    return SamaNimi(nimi, "sKey") ? &avain_ : nullptr;
  }

  bool SeuraavaOn(const Rivipaikka& paikka) const {
    return rivilla_ && SamaNimi(rivit_.Teksti(parentId_), paikka.parentId) &&
           SamaNimi(rivit_.Teksti(jasen_), paikka.jasen);
  }

  int SeuraavaJarjestys() const { return static_cast<int>(rivit_.Kokonais(jarjestys_)); }

  static std::string Hakuavain(std::string_view parentId, std::string_view jasen) {
    std::string avain = PieniksiKirjaimiksi(parentId);
    avain += '\0';
    return avain += PieniksiKirjaimiksi(jasen);
  }

  void RakennaHakemisto() {
    Kysely kaikki(kanta_, "SELECT rowid, ParentID, MyRealNameInParentObj, OrderID FROM " + Lainaa(luokka_.Nimi()));
    hakemisto_.emplace();
    for (; kaikki.Seuraava(); ++kayttamatta_)
      (*hakemisto_)[Hakuavain(kaikki.Teksti(1), kaikki.Teksti(2))].rivit.push_back(
          {kaikki.Kokonais(0), static_cast<int>(kaikki.Kokonais(3))});
    for (auto& [avain, sisarukset] : *hakemisto_) std::ranges::stable_sort(sisarukset.rivit, {}, &Rivi::jarjestys);
  }

  bool SiirryHakemistossa(const Rivipaikka& paikka) {
    const auto it = hakemisto_->find(Hakuavain(paikka.parentId, paikka.jasen));
    if (it == hakemisto_->end()) return false;
    const auto rivi = std::ranges::find(it->second.rivit, paikka.jarjestys, &Rivi::jarjestys);
    return rivi != it->second.rivit.end() && Lue(*rivi);
  }

  std::optional<int> SiirrySeuraavaanHakemistossa(const Rivipaikka& paikka) {
    const auto it = hakemisto_->find(Hakuavain(paikka.parentId, paikka.jasen));
    if (it == hakemisto_->end()) return std::nullopt;
    auto& [rivit, seuraava] = it->second;
    while (seuraava < rivit.size()) {
      Rivi& rivi = rivit[seuraava++];
      if (Lue(rivi)) return rivi.jarjestys;
    }
    return std::nullopt;
  }

  bool Lue(Rivi& rivi) {
    if (rivi.kaytetty) return false;
    rivi.kaytetty = true;
    --kayttamatta_;
    rivit_.Alkuun();
    rivit_.Sido(1, rivi.rowid);
    return rivit_.Seuraava();
  }

  const Luokka& luokka_;
  Tietokanta& kanta_;
  Kysely rivit_;
  std::vector<Sarake> arvot_;
  std::vector<Oliosarake> oliot_;
  std::vector<std::string> vieraat_;
  int objId_ = -1, parentId_ = -1, jasen_ = -1, jarjestys_ = -1, instanssiId_ = -1, avain_ = -1;
  bool rivilla_ = false;
  std::optional<Hakemisto> hakemisto_;
  int kayttamatta_ = 0;
};

Rivilukija::Rivilukija(Tietokanta& kanta, Latausraportti& raportti)
    : kanta_(kanta), raportti_(raportti), tiedostonTaulut_(TiedostonTaulut(kanta)) {}

Rivilukija::~Rivilukija() = default;

void Rivilukija::Lue(Olio& juuri) {
  try {
    LuePuu(juuri, Haku::Jarjestyksessa);
  } catch (const Poikkeama&) {
    LuePuu(juuri, Haku::Hakemistosta);
  }
}

void Rivilukija::LuePuu(Olio& juuri, Haku haku) {
  haku_ = haku;
  syvyys_ = 0;
  vieraitaJasenia_ = false;
  raportti_.vaurioita = 0;
  raportti_.esimerkit.clear();
  taulut_.clear();
  taulut_.resize(Luokka::Kaikki().size());
  Taulu* taulu = EtsiTaulu(juuri.LuokanTiedot());
  if (!taulu || !taulu->Siirry(kJuurenPaikka)) {
    if (taulu && haku == Haku::Jarjestyksessa) throw Poikkeama();
    throw Projektivirhe(Projektivirhe::Syy::EiProjekti, kanta_.Tiedosto() + ": tiedostossa ei ole katselmuskohdetta");
  }
  juurenAvain_ = taulu->ObjId();
  LueOlio(juuri, *taulu, kJuurenPaikka.jasen, false);
  TarkistaKaytetyt();
}

void Rivilukija::LueOlio(Olio& olio, Taulu& taulu, std::string_view jasen, bool alkio) {
  const std::string objId(taulu.ObjId());
  LueTunnisteet(olio, taulu, alkio);
  LueArvot(olio, taulu);
  const std::vector<const Oliosarake*> lapset = LueMerkit(taulu);
  taulu.Kaytetty();
  if (syvyys_ == kEnimmaissyvyys) return RiviPuuttuu(taulu.OmaLuokka(), "liian syvällä");
  ++syvyys_;
  for (const Oliosarake* lapsi : lapset) LueLapsi(olio, *lapsi->jasen, lapsi->nimi, objId);
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana()) LueAlkiot(*kokoelma, objId, jasen);
  if (KokoelmaPohja* lista = olio.ListaItemeina()) LueAlkiot(*lista, objId, jasen);
  --syvyys_;
}

void Rivilukija::LueTunnisteet(Olio& olio, const Taulu& taulu, bool alkio) {
  const Sana& luokka = taulu.OmaLuokka().NimiSana();
  const std::string_view id = taulu.Teksti(taulu.InstanssiId());
  if (!id.empty() && id != merkit::kTyhja) olio.InstanssiId = Tunniste::Lue(id, luokka);
  const std::string_view avain = taulu.Teksti(taulu.Avain());
  if (alkio || avain.empty() || avain == merkit::kTyhja) return;
  if (auto* avaimellinen = dynamic_cast<Alkio*>(&olio)) avaimellinen->sKey = Tunniste::Lue(avain, luokka);
}

void Rivilukija::LueArvot(Olio& olio, const Taulu& taulu) {
  ArvoNakyma arvo;
  for (const Taulu::Sarake& sarake : taulu.Arvot()) {
    taulu.Nayta(sarake.paikka, arvo);
    if (sarake.teksti && !TulkitseMerkki(*sarake.jasen, arvo)) continue;
    if (arvo.OmaMuoto() == ArvoNakyma::Muoto::Tyhja) {
      Vaurio(taulu.OmaLuokka(), sarake.jasen->nimi, "arvo puuttuu");
      continue;
    }
    if (!Aseta(olio, *sarake.jasen, arvo)) Vaurio(taulu.OmaLuokka(), sarake.jasen->nimi, Arvoteksti(arvo));
  }
}

/// Turns the mark of an empty text into one. False when the column holds no value.
bool Rivilukija::TulkitseMerkki(const Jasen& jasen, ArvoNakyma& arvo) {
  const std::string_view teksti = arvo.OmaMuoto() == ArvoNakyma::Muoto::Teksti ? arvo.Teksti() : std::string_view{};
  if (teksti.empty() || (teksti.front() != 'E' && teksti.front() != 'I')) return true;
  if (teksti == merkit::kOlio) vieraitaJasenia_ = true;
  if (OnMerkki(teksti)) return false;
  if (teksti != merkit::kTyhja) return true;
  arvo.Aseta(std::string_view{});
  return jasen.laji == Laji::Teksti;
}

/// The member objects that have rows of their own, in the order of the columns.
std::vector<const Rivilukija::Oliosarake*> Rivilukija::LueMerkit(const Taulu& taulu) {
  std::vector<const Oliosarake*> lapset;
  for (const Oliosarake& sarake : taulu.Oliot()) {
    const std::string_view merkki = taulu.Teksti(sarake.paikka);
    const bool olio = merkki == merkit::kOlio;
    if (olio && sarake.jasen)
      lapset.push_back(&sarake);
    else if (olio)
      vieraitaJasenia_ = true;
    else if (sarake.jasen && !merkki.empty() && merkki != merkit::kTyhja && !OnMerkki(merkki))
      Vaurio(taulu.OmaLuokka(), sarake.nimi, merkki);
  }
  return lapset;
}

void Rivilukija::LueLapsi(Olio& olio, const Jasen& jasen, std::string_view nimi, const std::string& objId) {
  Olio* lapsi = HaeTaiLuo(olio, jasen);
  if (!lapsi) return Vaurio(olio.LuokanTiedot(), nimi, "oliota ei voi luoda");
  if (raportti_.eteneminen) raportti_.eteneminen(lapsi->LuokanTiedot());
  Taulu* taulu = EtsiTaulu(lapsi->LuokanTiedot());
  if (!taulu || !taulu->Siirry({objId, nimi})) return RiviPuuttuu(olio.LuokanTiedot(), nimi);
  LueOlio(*lapsi, *taulu, nimi, false);
}

void Rivilukija::LueAlkiot(KokoelmaPohja& kokoelma, const std::string& parentId, std::string_view jasen) {
  kokoelma.Tyhjenna();
  Taulu* taulu = EtsiTaulu(kokoelma.AlkionLuokka());
  if (!taulu) return;
  std::int64_t odotettu = 1;
  while (const std::optional<int> jarjestys = taulu->SiirryAlkioon({parentId, jasen})) {
    if (*jarjestys != odotettu) RiviPuuttuu(taulu->OmaLuokka(), jasen);
    odotettu = std::int64_t{*jarjestys} + 1;
    LueOlio(kokoelma.LisaaPohja(AlkionAvain(*taulu, kokoelma)), *taulu, jasen, true);
  }
}

/// The key of the item on whose row the table stands; a fresh one for an item without a key, or with one in use.
Tunniste Rivilukija::AlkionAvain(const Taulu& taulu, KokoelmaPohja& kokoelma) {
  const Sana& luokka = taulu.OmaLuokka().NimiSana();
  const std::string_view teksti = taulu.Teksti(taulu.Avain());
  if (!teksti.empty() && teksti != merkit::kTyhja) {
    const Tunniste avain = Tunniste::Lue(teksti, luokka);
    if (!kokoelma.EtsiPohja(avain)) return avain;
  }
  Vaurio(taulu.OmaLuokka(), "sKey", teksti);
  return Tunniste::Uusi(luokka);
}

void Rivilukija::TarkistaKaytetyt() {
  int kayttamatta = 0;
  raportti_.tuntemattomat.clear();
  for (const Luokka* luokka : Luokka::Kaikki())
    if (const Taulu* taulu = EtsiTaulu(*luokka)) {
      kayttamatta += taulu->Kayttamatta();
      std::ranges::copy(taulu->Vieraat(), std::back_inserter(raportti_.tuntemattomat));
    }
  if (!kayttamatta) return;
  if (haku_ == Haku::Jarjestyksessa) throw Poikkeama();
  if (!vieraitaJasenia_) raportti_.vaurioita += kayttamatta;  // else they may belong to what this program doesn't know
}

void Rivilukija::RiviPuuttuu(const Luokka& luokka, std::string_view mika) {
  if (haku_ == Haku::Jarjestyksessa) throw Poikkeama();
  Vaurio(luokka, mika, "rivi puuttuu");
}

void Rivilukija::Vaurio(const Luokka& luokka, std::string_view mika, std::string_view arvo) {
  ++raportti_.vaurioita;
  if (raportti_.esimerkit.size() < kEsimerkkeja)
    raportti_.esimerkit.push_back(std::string(luokka.Nimi()) + "." + std::string(mika) + ": " + std::string(arvo));
}

Rivilukija::Taulu* Rivilukija::EtsiTaulu(const Luokka& luokka) {
  auto& taulu = taulut_[luokka.Numero()];
  if (!taulu && std::ranges::any_of(tiedostonTaulut_, [&](const auto& nimi) { return SamaNimi(nimi, luokka.Nimi()); }))
    taulu = std::make_unique<Taulu>(kanta_, luokka, haku_);
  return taulu.get();
}
