// SPDX-License-Identifier: GPL-3.0-or-later
// A small tree of objects with members of every kind, its template, and a filled example: what the tests of saving,
// loading, register and comparison run on.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "kernel/Hakemistot.h"
#include "kernel/Kokoelma.h"
#include "kernel/Tietokanta.h"
#include "kernel/Vertailu.h"
#include "kernel/clsTyyppiTiedot.h"
#include "tests/kernel/Koehakemisto.h"

namespace koe {

class Varjo : public Malli<Varjo> {
 public:
  static const Luokka kLuokka;
  float Kulma = 0;
};

class Ratkaisu : public Malli<Ratkaisu> {
 public:
  static const Luokka kLuokka;
  std::string Kuvaus;
  Varjo Pinta;
};

class Rakenne : public Malli<Rakenne, Alkio> {
 public:
  static const Luokka kLuokka;
  double PintaAla = 0;
  Omistus<Ratkaisu> Kerrokset;
};

class Rakenteet : public Malli<Rakenteet, Kokoelma<Rakenne>> {
 public:
  static const Luokka kLuokka;
};

class Tila : public Malli<Tila, Alkio> {
 public:
  static const Luokka kLuokka;
  std::string TilanNimi;
  double Lampotila = 21;
  Rakenteet Seinat;
  Varjo Sivu, Yla;
};

class Tilat : public Malli<Tilat, Kokoelma<Tila>> {
 public:
  static const Luokka kLuokka;
  std::int32_t Laskuri = 0;
};

class Ryhma : public Malli<Ryhma, Alkio> {
 public:
  static const Luokka kLuokka;
  double Teho = 0;
};

class Listarivi : public Malli<Listarivi, Alkio> {
 public:
  static const Luokka kLuokka;
  std::string Parent;
  std::int32_t ItemTyyppi = 0;
};

class Ryhmat : public Malli<Ryhmat, Kokoelma<Ryhma>> {
 public:
  static const Luokka kLuokka;
  KokoelmaPohja* ListaItemeina() noexcept override { return &Lista; }
  Sailio<Listarivi> Lista;
};

/// Holds a reference to a space, or a space of its own that may be nothing.
class Toimenpide : public Malli<Toimenpide> {
 public:
  static const Luokka kLuokka;
  Omistus<Tila> Oma;
};

class Rakennus : public Malli<Rakennus> {
 public:
  static const Luokka kLuokka;
  std::string KohteenNimi;
  std::int16_t Lyhyt = 0;
  std::int32_t Pitka = 0;
  float Yksin = 0;
  double Kaksin = 0;
  bool Tosi = false;
  Kellonaika Aika;
  Tunniste LiittyyTilaansKey;
  Tilat TilatKokoelma;
  Ryhmat Kuluttajat;
  Toimenpide Saasto;
};

inline constexpr Jasen kVarjonJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId"), Arvo<&Varjo::Kulma>("Kulma", "°")};
inline constexpr Jasen kRatkaisunJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId"),
                                              Arvo<&Ratkaisu::Kuvaus>("Kuvaus"), Lapsi<&Ratkaisu::Pinta>("Pinta")};
inline constexpr Jasen kRakenteenJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId"), Arvo<&Alkio::sKey>("sKey"),
                                              Arvo<&Rakenne::PintaAla>("PintaAla", "m²"),
                                              Lapsi<&Rakenne::Kerrokset>("Kerrokset")};
inline constexpr Jasen kRakenteidenJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId")};
inline constexpr Jasen kTilanJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&Tila::TilanNimi>("TilanNimi"),
    Arvo<&Tila::Lampotila>("Lampotila"),
    Lapsi<&Tila::Sivu>("Sivu"),
    Lapsi<&Tila::Seinat>("Seinat"),
    Lapsi<&Tila::Yla>("Yla"),
};
inline constexpr Jasen kTilojenJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId"), Arvo<&Tilat::Laskuri>("Laskuri")};
inline constexpr Jasen kRyhmanJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId"), Arvo<&Alkio::sKey>("sKey"),
                                           Arvo<&Ryhma::Teho>("Teho", "kW")};
inline constexpr Jasen kListarivinJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId"), Arvo<&Alkio::sKey>("sKey"),
                                               Arvo<&Listarivi::Parent>("Parent"),
                                               Arvo<&Listarivi::ItemTyyppi>("ItemTyyppi")};
inline constexpr Jasen kRyhmienJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId")};

constexpr Jasen ViittausTilaan() {
  Jasen jasen = Lapsi<&Toimenpide::Oma>("Ennen");
  jasen.viittaus = true;
  return jasen;
}
inline constexpr Jasen kToimenpiteenJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId"), ViittausTilaan()};

inline constexpr Jasen kRakennuksenJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Rakennus::KohteenNimi>("KohteenNimi"),
    Arvo<&Rakennus::Lyhyt>("Lyhyt"),
    Arvo<&Rakennus::Pitka>("Pitka"),
    Arvo<&Rakennus::Yksin>("Yksin"),
    Arvo<&Rakennus::Kaksin>("Kaksin"),
    Arvo<&Rakennus::Tosi>("Tosi"),
    Arvo<&Rakennus::Aika>("Aika"),
    Arvo<&Rakennus::LiittyyTilaansKey>("LiittyyTilaansKey"),
    Lapsi<&Rakennus::TilatKokoelma>("Tilat"),
    Lapsi<&Rakennus::Kuluttajat>("Kuluttajat"),
    Lapsi<&Rakennus::Saasto>("Saasto"),
};

inline const Luokka Varjo::kLuokka{"KoeVarjo", kVarjonJasenet};
inline const Luokka Ratkaisu::kLuokka{"KoeRatkaisu", kRatkaisunJasenet};
inline const Luokka Rakenne::kLuokka{"KoeRakenne", kRakenteenJasenet};
inline const Luokka Rakenteet::kLuokka{"KoeRakenteet", kRakenteidenJasenet};
inline const Luokka Tila::kLuokka{"KoeTila", kTilanJasenet};
inline const Luokka Tilat::kLuokka{"KoeTilat", kTilojenJasenet};
inline const Luokka Ryhma::kLuokka{"KoeRyhma", kRyhmanJasenet};
inline const Luokka Listarivi::kLuokka{"KoeListarivi", kListarivinJasenet};
inline const Luokka Ryhmat::kLuokka{"KoeRyhmat", kRyhmienJasenet};
inline const Luokka Toimenpide::kLuokka{"KoeToimenpide", kToimenpiteenJasenet};
inline const Luokka Rakennus::kLuokka{"KoeRakennus", kRakennuksenJasenet};

inline const Luokka* const kLuokat[] = {
    &Rakennus::kLuokka,  &Tilat::kLuokka,    &Tila::kLuokka,       &Rakenteet::kLuokka,
    &Rakenne::kLuokka,   &Ratkaisu::kLuokka, &Varjo::kLuokka,      &Ryhmat::kLuokka,
    &Listarivi::kLuokka, &Ryhma::kLuokka,    &Toimenpide::kLuokka,
};

inline std::string Saraketyyppi(Laji laji) {
  switch (laji) {
    case Laji::Lyhyt:
    case Laji::Pitka:
      return " INTEGER";
    case Laji::Totuus:
      return " BOOLEAN";
    case Laji::Paivays:
      return " DATETIME";
    case Laji::Teksti:
    case Laji::Olio:
      return " TEXT";
    default:
      return " REAL";
  }
}

/// The columns of a class's table as a list in parentheses.
inline std::string Sarakkeet(const Luokka& luokka) {
  std::string sql =
      "(ObjID TEXT COLLATE NOCASE, ParentID TEXT COLLATE NOCASE, MyRealNameInParentObj TEXT COLLATE NOCASE, OrderID "
      "INTEGER";
  for (const Jasen& jasen : luokka.Jasenet()) sql += ", " + std::string(jasen.nimi) + Saraketyyppi(jasen.laji);
  return sql + ")";
}

/// Makes the template of the tree's classes. A statement of `muutokset` may change it afterwards.
inline void TeeMalli(const std::filesystem::path& tiedosto, const std::string& muutokset = {}) {
  std::filesystem::remove(tiedosto);
  Tietokanta kanta(tiedosto.string(), Tietokanta::Tapa::Uusi);
  Transaktio transaktio(kanta);
  kanta.Aja("CREATE TABLE ClassTypes (Name TEXT)");
  for (const Luokka* luokka : kLuokat) {
    const std::string nimi(luokka->Nimi());
    kanta.Aja("INSERT INTO ClassTypes VALUES (?)", nimi);
    kanta.Aja("CREATE TABLE " + nimi + Sarakkeet(*luokka));
  }
  if (!muutokset.empty()) kanta.Aja(muutokset);
  transaktio.Hyvaksy();
}

/// Fills the tree: `tiloja` spaces with three walls each, every third wall with layers.
inline void Tayta(Rakennus& r, int tiloja = 5) {
  r.KohteenNimi = "Kohde Åbo, \"hämärä\" ’lätäkkö’";
  r.Lyhyt = -7;
  r.Pitka = 2000000000;
  r.Yksin = 0.1f;
  r.Kaksin = 1.0 / 3;
  r.Tosi = true;
  r.Aika.minuutit = 6 * 60 + 15;
  r.TilatKokoelma.Laskuri = tiloja;
  for (int i = 0; i < tiloja; ++i) {
    Tila& tila = r.TilatKokoelma.Add(Tunniste::Uusi(Tila::kLuokka.NimiSana()));
    tila.TilanNimi = "Tila " + std::to_string(i);
    tila.Lampotila = 18 + 0.1 * i;
    tila.Sivu.Kulma = static_cast<float>(i);
    tila.Yla.Kulma = static_cast<float>(-i);
    for (int j = 0; j < 3; ++j) {
      Rakenne& rakenne = tila.Seinat.Add(Tunniste::Uusi(Rakenne::kLuokka.NimiSana()));
      rakenne.PintaAla = i + j / 7.0;
      if (j == 2) rakenne.Kerrokset.Luo().Kuvaus = "tiili " + std::to_string(i);
    }
  }
  if (tiloja) r.LiittyyTilaansKey = r.TilatKokoelma.Item(1).sKey;
  for (const char* avain : {"sKeyVesi", "sKeySähkö"}) {
    r.Kuluttajat.Add(avain).Teho = 2.5;
    r.Kuluttajat.Lista.Add(avain).Parent = "sKeyKaikki";
  }
}

/// A directory of its own for a test. AppPath lies in it and holds the template.
class Hakemisto {
 public:
  Hakemisto() {
    std::filesystem::create_directories(koti_ / "ohjelma");
    AsetaAppPath((koti_ / "ohjelma").string());
    TeeMalli(Malli());
  }
  ~Hakemisto() { AsetaAppPath(aiempi_); }
  Hakemisto(const Hakemisto&) = delete;
  Hakemisto& operator=(const Hakemisto&) = delete;

  std::filesystem::path operator/(const std::string& nimi) const { return koti_ / nimi; }
  std::string Projekti() const { return (koti_ / "50 % #1.lvt").string(); }
  std::string Malli() const { return AppPath() + "stemplate.tmp"; }
  std::string Varakopio() const { return AppPath() + "~backup1lvt.old"; }

 private:
  Koehakemisto koti_;
  std::string aiempi_ = AppPath();
};

/// The differences of two trees, as "Class.Member".
inline std::vector<std::string> Erot(Olio& tama, Olio& toinen, const std::string& malli) {
  clsTyyppiTiedot tyypit;
  tyypit.AlustaTyyppitiedot(malli);
  Muutoslista lista;
  VertaileOliot(tama, toinen, lista, tyypit);
  std::vector<std::string> erot;
  for (const Muutos& m : lista.muutokset)
    erot.push_back(std::string(m.clsTypeName) + "." + std::string(m.attribuutinNimi));
  return erot;
}

/// All rows of one column of a file, in the order of the rows.
inline std::vector<std::string> Arvot(const std::string& tiedosto, const std::string& taulu,
                                      const std::string& sarake) {
  Tietokanta kanta(tiedosto);
  std::vector<std::string> arvot;
  for (Kysely rivit(kanta, "SELECT " + sarake + " FROM " + taulu + " ORDER BY rowid"); rivit.Seuraava();)
    arvot.emplace_back(rivit.Teksti(0));
  return arvot;
}

}  // namespace koe
