-- Empty project file: one table per class of the model, one column per attribute. The tables alone decide which
-- members are stored and compared; a new attribute is a row in its class's member table and a column here.

CREATE TABLE ClassTypes (Name TEXT);
INSERT INTO ClassTypes VALUES ('Rakenneratkaisu');
INSERT INTO ClassTypes VALUES ('clsElinkaari');
INSERT INTO ClassTypes VALUES ('clsElinkaarisolmu');
INSERT INTO ClassTypes VALUES ('clsElinkaarisolmut');
INSERT INTO ClassTypes VALUES ('clsEnergiamaksu');
INSERT INTO ClassTypes VALUES ('clsEnergiamaksut');
INSERT INTO ClassTypes VALUES ('clsEnergiamuodot');
INSERT INTO ClassTypes VALUES ('clsEnergiamuoto');
INSERT INTO ClassTypes VALUES ('clsEnergianHankinta');
INSERT INTO ClassTypes VALUES ('clsHorisVarjostus');
INSERT INTO ClassTypes VALUES ('clsIVKone');
INSERT INTO ClassTypes VALUES ('clsIVKoneet');
INSERT INTO ClassTypes VALUES ('clsKatselmoijanTiedot');
INSERT INTO ClassTypes VALUES ('clsKatselmoijienTiedot');
INSERT INTO ClassTypes VALUES ('clsKayntiAika');
INSERT INTO ClassTypes VALUES ('clsKayntiAjat');
INSERT INTO ClassTypes VALUES ('clsLammKulutuksenVakioOsuus');
INSERT INTO ClassTypes VALUES ('clsLammTehot');
INSERT INTO ClassTypes VALUES ('clsLippaVarjostus');
INSERT INTO ClassTypes VALUES ('clsLto');
INSERT INTO ClassTypes VALUES ('clsMuuttuneetAttribuutit');
INSERT INTO ClassTypes VALUES ('clsMuuttunutAttribuutti');
INSERT INTO ClassTypes VALUES ('clsPerustiedot');
INSERT INTO ClassTypes VALUES ('clsProjektiAsetukset');
INSERT INTO ClassTypes VALUES ('clsPuhallinSahkoLaskParametrit');
INSERT INTO ClassTypes VALUES ('clsPuhaltimenSahkonKulutus');
INSERT INTO ClassTypes VALUES ('clsRakenne');
INSERT INTO ClassTypes VALUES ('clsRakennekerros');
INSERT INTO ClassTypes VALUES ('clsRakennus');
INSERT INTO ClassTypes VALUES ('clsRakenteet');
INSERT INTO ClassTypes VALUES ('clsRaporttiasetukset');
INSERT INTO ClassTypes VALUES ('clsResurssi');
INSERT INTO ClassTypes VALUES ('clsResurssit');
INSERT INTO ClassTypes VALUES ('clsSaa');
INSERT INTO ClassTypes VALUES ('clsSaastoToimenpideListaItem');
INSERT INTO ClassTypes VALUES ('clsSaastotoimenpide');
INSERT INTO ClassTypes VALUES ('clsSaastotoimenpiteet');
INSERT INTO ClassTypes VALUES ('clsSahkoListaItem');
INSERT INTO ClassTypes VALUES ('clsSahkoTariffienVertailu');
INSERT INTO ClassTypes VALUES ('clsSahkonKulutusryhma');
INSERT INTO ClassTypes VALUES ('clsSahkonKulutusryhmat');
INSERT INTO ClassTypes VALUES ('clsTariffi');
INSERT INTO ClassTypes VALUES ('clsTariffiVertailuTapaukset');
INSERT INTO ClassTypes VALUES ('clsTariffiVertailuTapaus');
INSERT INTO ClassTypes VALUES ('clsTariffit');
INSERT INTO ClassTypes VALUES ('clsTila');
INSERT INTO ClassTypes VALUES ('clsTilat');
INSERT INTO ClassTypes VALUES ('clsToimenpiteidenJarjestelija');
INSERT INTO ClassTypes VALUES ('clsToteutuneetKulutukset');
INSERT INTO ClassTypes VALUES ('clsToteutunutKulutus');
INSERT INTO ClassTypes VALUES ('clsValittuToimenpide');
INSERT INTO ClassTypes VALUES ('clsValitutToimenpiteet');
INSERT INTO ClassTypes VALUES ('clsVedenKulutusryhma');
INSERT INTO ClassTypes VALUES ('clsVedenKulutusryhmat');
INSERT INTO ClassTypes VALUES ('clsVedenTiedot');
INSERT INTO ClassTypes VALUES ('clsVesiListaItem');
INSERT INTO ClassTypes VALUES ('clsVesitariffi');
INSERT INTO ClassTypes VALUES ('clsVesitariffit');
INSERT INTO ClassTypes VALUES ('colMateriaalit');

CREATE TABLE Rakenneratkaisu (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  Nimi TEXT,
  Kuvaus TEXT,
  Rakennetyyppi TEXT,
  Kerrokset TEXT,
  Paloluokka TEXT,
  Rw REAL,
  Paksuus REAL,
  Pistemaiset REAL,
  PistemaisetWpK REAL,
  Viivamaiset REAL,
  ViivamaisetWpK REAL,
  PintavastusSisa REAL,
  PintavastusUlko REAL,
  KerrostenMassaYht REAL,
  Karmikerroin REAL,
  Aurinkoenergianlapaisy REAL,
  Verhokerroin REAL,
  Kokonaisvarjostuskerroin REAL,
  OnIkkuna BOOLEAN,
  U_arvoAnnettu BOOLEAN,
  U_arvo REAL
);

CREATE TABLE clsElinkaari (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  OletuksetAnnettu BOOLEAN,
  Pitoaika INTEGER,
  Korkokanta REAL,
  LammonHinnannousu REAL,
  SahkonHinnannousu REAL,
  VedenHinnannousu REAL,
  VertailunNimi TEXT,
  VertailuMateriaalit REAL,
  VertailuEnergia REAL,
  Perustaminen TEXT,
  Hoito TEXT
);

CREATE TABLE clsElinkaarisolmu (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  TyyppiID INTEGER,
  Laskentayksikko TEXT,
  MaaraMallista BOOLEAN,
  YksikoidenMaara REAL,
  Yksikkokustannus REAL
);

CREATE TABLE clsElinkaarisolmut (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT
);

CREATE TABLE clsEnergiamaksu (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Nimi TEXT,
  Hinta REAL,
  Kulutusosuus REAL
);

CREATE TABLE clsEnergiamaksut (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT
);

CREATE TABLE clsEnergiamuodot (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT
);

CREATE TABLE clsEnergiamuoto (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  Nimi TEXT,
  Kuvaus TEXT,
  sKey TEXT,
  Tyyppi INTEGER,
  OsuusNettotarpeesta REAL,
  Hyotysuhde REAL,
  MyyntiTariffiSkey TEXT,
  SiirtoTariffiSkey TEXT,
  Yksikko TEXT,
  IdEmuotoKannassa INTEGER,
  OnVakiokannasta BOOLEAN,
  EnergiaMuotokannanVersio INTEGER,
  LaskePaastotPolttoaineista BOOLEAN,
  UusiutumatonEnergia REAL,
  UusiutuvaEnergia REAL,
  UusiutumattomatRaakaaineet REAL,
  UusiutuvatRaakaaineet REAL,
  IlmastonLampeneminenCO2ekv REAL,
  VarastoitunutCO2 REAL,
  HappamoituminenSOxekv REAL,
  OksidanttienMuodostus REAL,
  Particle REAL,
  Resurssit TEXT
);

CREATE TABLE clsEnergianHankinta (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  Nimi TEXT,
  Kuvaus TEXT,
  Kayttotarkoitus INTEGER,
  Energiamuodot TEXT
);

CREATE TABLE clsHorisVarjostus (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  TyyppiID INTEGER,
  TyyppiStr TEXT,
  Varjostuskulma REAL
);

CREATE TABLE clsIVKone (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  KoneenTunnus TEXT,
  TuloIlmavirta11Teho REAL,
  PoistoIlmavirta11Teho REAL,
  SisaanpuhallusLampotila REAL,
  PoistoLampotila REAL,
  IlmanLampeneminenPuhaltimessa REAL,
  LtoHyotysuhde REAL,
  TuloilmanLammitysSahkoPatterilla BOOLEAN,
  IVPeriaateID INTEGER,
  IVPeriaate TEXT,
  JarjestelmaTyyppiID INTEGER,
  JarjestelmaTyyppi TEXT,
  PuhaltimenSaatotapaID INTEGER,
  PuhaltimenSaatotapa TEXT,
  PuhaltimenVoimansiirtoTapaID INTEGER,
  PuhaltimenVoimansiirtoTapa TEXT,
  VakioPaineOsuusID INTEGER,
  VakioPaineOsuus TEXT,
  LiittyyTilaansKey TEXT,
  Lto TEXT,
  KayntiAikaYleistiedot TEXT,
  PuhaltimienSahkonKulutus TEXT,
  LammTehot TEXT
);

CREATE TABLE clsIVKoneet (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT
);

CREATE TABLE clsKatselmoijanTiedot (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  Tehtavanimike TEXT,
  Nimi TEXT,
  Puhelin TEXT,
  Matkapuhelin TEXT,
  Faksi TEXT,
  Sahkoposti TEXT
);

CREATE TABLE clsKatselmoijienTiedot (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  LVIKatselmoija TEXT,
  SahkoKatselmoija TEXT
);

CREATE TABLE clsKayntiAika (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Jakso INTEGER,
  KayntiJaksojenLkm INTEGER,
  Alkaa DATETIME,
  Paattyy DATETIME,
  TuloIlmavirtaProsentti REAL,
  Tsp REAL,
  dTPuhallin REAL
);

CREATE TABLE clsKayntiAjat (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  KayntiaikojenSyottotapaID INTEGER,
  KayntiAikojenSyottoTapa TEXT,
  IvKoneenNimi TEXT
);

CREATE TABLE clsLammKulutuksenVakioOsuus (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  kkOsuus REAL,
  VuosiOsuus REAL
);

CREATE TABLE clsLammTehot (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  TuloilmanLammitysteho REAL,
  LtoTeho REAL,
  JalkilammitysTeho REAL
);

CREATE TABLE clsLippaVarjostus (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  TyyppiID INTEGER,
  TyyppiStr TEXT,
  Varjostuskulma REAL
);

CREATE TABLE clsLto (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  Tu REAL,
  Tp REAL,
  Tlto REAL
);

CREATE TABLE clsMuuttuneetAttribuutit (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  TyypinNimi TEXT,
  LiittyyInstanssiin TEXT
);

CREATE TABLE clsMuuttunutAttribuutti (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  sKey TEXT,
  clsTypeName TEXT,
  AttribuutinNimi TEXT,
  ArvoEnnen REAL,
  ArvoJalkeen REAL,
  Yksikko TEXT,
  InstanssiId TEXT,
  ArvoEnnenStr TEXT,
  ArvoJalkeenStr TEXT,
  TietoTyyppi INTEGER
);

CREATE TABLE clsPerustiedot (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  KohteenNimi TEXT,
  Pvm TEXT,
  Kayttotarkoitus TEXT,
  KayttoTarkoitusID INTEGER,
  ValmistumisVuosi INTEGER,
  Kokonaistilavuus REAL,
  KylmanTilavuudenOsuus REAL,
  BruttoAla REAL,
  KylmanAlanOsuus REAL,
  KerrostenLukumaara REAL,
  KohteenHenkiloMaara REAL,
  LammTarveLukuPaikkakunta TEXT,
  LammTarveLukuPaikkakuntaID INTEGER,
  NormVuodenLammTarveLuku REAL,
  ToteutuneetKulutukset TEXT,
  LammKulVakioOsuus TEXT,
  LammonHankinta TEXT,
  SahkonHankinta TEXT,
  VedenHankinta TEXT,
  OletusarvotLaskettu BOOLEAN
);

CREATE TABLE clsProjektiAsetukset (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  strCurrentProjectFile TEXT,
  strCurrentProjectPath TEXT,
  strCurrentProjectFileRevision TEXT
);

CREATE TABLE clsPuhallinSahkoLaskParametrit (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  Ilmavirta REAL,
  PaineenKorotus REAL,
  PuhaltimenHyotysuhde REAL,
  HihnavalityksenHyotysuhde REAL,
  MoottorinHyotysuhde REAL,
  TaajuusmuuttajanHyotysuhde REAL
);

CREATE TABLE clsPuhaltimenSahkonKulutus (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  TuloSahkoTeho11 REAL,
  PoistoSahkoTeho11 REAL,
  TuloSahkoOsaTeho REAL,
  PoistoSahkoOsaTeho REAL,
  Teho11Prosentti REAL,
  OsaTehoProsentti REAL,
  TuloIlmavirta11Teho REAL,
  PoistoIlmavirta11Teho REAL,
  Teho11TiedonLaatuIDTulo INTEGER,
  Teho11TiedonLaatuIDPoisto INTEGER,
  OsaTehoTiedonLaatuIDTulo INTEGER,
  OsaTehoTiedonLaatuIDPoisto INTEGER,
  VakioPaineOsuusID INTEGER,
  PuhaltimenVoimansiirtoTapaID INTEGER,
  PuhaltimenSaatotapaID INTEGER,
  JarjestelmaTyyppiID INTEGER,
  IVPeriaateID INTEGER,
  PuhaltimenSaatotapa TEXT,
  KoneenTunnus TEXT,
  TuloPuhParam TEXT,
  PoistoPuhParam TEXT
);

CREATE TABLE clsRakenne (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Rakennetyyppi INTEGER,
  TyyppiID INTEGER,
  TyyppiStr TEXT,
  SuuntausID INTEGER,
  SuuntausStr TEXT,
  PintaAla REAL,
  U_arvo REAL,
  LaskeU_arvoMateriaaleista BOOLEAN,
  RakenneRatkaisu TEXT,
  HorisVarjostus TEXT,
  SivuLippa TEXT,
  YlaLippa TEXT,
  RakennekannanVersio INTEGER
);

CREATE TABLE clsRakennekerros (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  Nimi TEXT,
  MateriaaliId TEXT,
  MateriaaliNimi TEXT,
  MateriaaliLambda REAL,
  MateriaaliTiheys REAL,
  MateriaaliOminaislampo REAL,
  Paksuus REAL,
  UArvoon BOOLEAN,
  Yhtenainen BOOLEAN,
  LisamateriaaliId TEXT,
  LisamateriaaliNimi TEXT,
  LisamateriaaliLambda REAL,
  LisamateriaaliTiheys REAL,
  LisamateriaaliOminaislampo REAL,
  LisamateriaalinOsuus REAL,
  Lammonvastus REAL,
  sKey TEXT
);

CREATE TABLE clsRakennus (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  Saa TEXT,
  SahkonKulutusryhmat TEXT,
  VedenKulutusryhmat TEXT,
  ProjektiAsetukset TEXT,
  KatselmoijienTiedot TEXT,
  Tariffit TEXT,
  Vesitariffit TEXT,
  Saastotoimenpiteet TEXT,
  SahkoTariffienVertailu TEXT,
  ToimenpiteidenJarjestelija TEXT,
  Perustiedot TEXT,
  Tilat TEXT,
  IVKoneet TEXT,
  Elinkaari TEXT,
  Raporttiasetukset TEXT,
  Major INTEGER,
  Minor INTEGER,
  Revision INTEGER,
  MuuLampo REAL,
  Tallennettu BOOLEAN
);

CREATE TABLE clsRakenteet (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT
);

CREATE TABLE clsRaporttiasetukset (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  Nykytila TEXT,
  Suositus TEXT,
  Poisjatetyt TEXT
);

CREATE TABLE clsResurssi (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  ID INTEGER,
  Nimi TEXT,
  Kuvaus TEXT,
  sKey TEXT,
  KuuluuVakiokantaan BOOLEAN,
  ResurssiTyyppi TEXT,
  Yksikko TEXT,
  Maara REAL,
  Massa REAL,
  Kuivatiheys REAL,
  YlempiLampoArvo REAL,
  AlempiLampoArvo REAL,
  UusiutumatonEnergia REAL,
  UusiutuvaEnergia REAL,
  UusiutumattomatRaakaaineet REAL,
  UusiutuvatRaakaaineet REAL,
  IlmastonLampeneminenCO2ekv REAL,
  VarastoitunutCO2 REAL,
  HappamoituminenSOxekv REAL,
  OksidanttienMuodostus REAL,
  Particle REAL
);

CREATE TABLE clsResurssit (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  Maara TEXT,
  Yksikko TEXT
);

CREATE TABLE clsSaa (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  Nimi TEXT,
  LammMitoitusUlkolampotila REAL,
  NormVuodenLammTarveLuku REAL,
  SaaFileNimi TEXT
);

CREATE TABLE clsSaastoToimenpideListaItem (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Parent TEXT,
  NimiTeksti TEXT,
  ItemTyyppi INTEGER,
  Visible BOOLEAN,
  ValittuTaulukko2een BOOLEAN
);

CREATE TABLE clsSaastotoimenpide (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  MuuttuneetAttribuutit TEXT,
  LampoEnergiaEnnen REAL,
  LampoEnergiaJalkeen REAL,
  SahkoEnergiaEnnen REAL,
  SahkoEnergiaJalkeen REAL,
  VedenkulutusEnnen REAL,
  VedenkulutusJalkeen REAL,
  sKey TEXT,
  JalkeenTiedotUpToDate BOOLEAN,
  EnnenTiedotUpToDate BOOLEAN,
  SahkoLoisTehoHinta REAL,
  SahkoPatoTehoHinta REAL,
  LampoTehoHinta REAL,
  VesiHinta REAL,
  SahkoEnergiaHinta REAL,
  LampoEnergiaHinta REAL,
  SaastoLoisTeho REAL,
  SaastoPatoTeho REAL,
  SaastoLampoteho REAL,
  Investointi REAL,
  TekninenKayttoika REAL,
  Kuvaus TEXT,
  Nimi TEXT,
  ToimenpiteenPaivays TEXT,
  ToimenpiteenTekijanNimi TEXT,
  Ennen TEXT
);

CREATE TABLE clsSaastotoimenpiteet (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  TaulukonNakymaTyyppiID INTEGER
);

CREATE TABLE clsSahkoListaItem (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Parent TEXT,
  NimiTeksti TEXT,
  Laskentatapa TEXT,
  ItemTyyppi INTEGER,
  Vuosikulutus REAL,
  SiirrettyToisestaModulista BOOLEAN,
  Collapsed BOOLEAN,
  Visible BOOLEAN
);

CREATE TABLE clsSahkoTariffienVertailu (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  TotEnergia REAL,
  TotHuippuTeho REAL,
  TotLoisteho REAL,
  BruttoAla REAL,
  KaytaVertailussaALVHintoja BOOLEAN,
  Tapaukset TEXT
);

CREATE TABLE clsSahkonKulutusryhma (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  KulutusRyhma TEXT,
  LiittyyTilaanStr TEXT,
  LiittyyTilaansKey TEXT,
  EnergiaHyodynnetaanLammityksessa BOOLEAN,
  LaskentatapaTehopohjainen BOOLEAN,
  LaskentatapaEnergiapohjainen BOOLEAN,
  LaskentatapaEnergiapohjainenIndex INTEGER,
  LaskentaperusteID INTEGER,
  LaskentaperusteStr TEXT,
  LaskentaperusteNumber REAL,
  Laskentayksikko TEXT,
  LaskentayksikkoNumber REAL,
  KayttoaikaHpD REAL,
  KayttoaikaDpA REAL,
  Tasauskerroin REAL,
  KulutusryhmienLukumaara REAL,
  SyötettyKulutus REAL
);

CREATE TABLE clsSahkonKulutusryhmat (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT
);

CREATE TABLE clsTariffi (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Nimi TEXT,
  Tariffityyppi INTEGER,
  ALV REAL,
  MaksutSisaltavatALVn BOOLEAN,
  Perusmaksu REAL,
  Tehomaksu REAL,
  TehomaksunMaaraytymisperuste REAL,
  Loistehomaksu REAL,
  LoistehomaksunMaaraytymisperuste REAL,
  Energiavero REAL,
  EnergiaveroID INTEGER,
  EnergiaveroStr TEXT,
  MuuMaksu REAL,
  Energiamaksut TEXT
);

CREATE TABLE clsTariffiVertailuTapaukset (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT
);

CREATE TABLE clsTariffiVertailuTapaus (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Nimi TEXT,
  Kuvaus TEXT,
  Investointi REAL,
  MyyntiTariffiSkey TEXT,
  SiirtoTariffiSkey TEXT,
  TotEnergia REAL,
  TotHuippuTeho REAL,
  TotLoisteho REAL,
  ToimenpiteenPaivays TEXT,
  ToimenpiteenTekijanNimi TEXT
);

CREATE TABLE clsTariffit (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT
);

CREATE TABLE clsTila (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  TilanNimi TEXT,
  Kokonaistilavuus REAL,
  BruttoAla REAL,
  TilanHenkilomaara REAL,
  TilanKayttoaikaID INTEGER,
  TilanKayttoaikaStr TEXT,
  TilanKayttoaikaHpA REAL,
  Sisalampotila REAL,
  Sahkolammitys BOOLEAN,
  Kuvausteksti TEXT,
  LammitettyTila BOOLEAN,
  PainovoimainenIVMaara REAL,
  Vuotoilmanvaihto REAL,
  PainovoimainenIlmanvaihto BOOLEAN,
  SaatotapaID INTEGER,
  SaatotapaStr TEXT,
  Saatohyotysuhde REAL,
  RakenteidenDynamiikkaID INTEGER,
  RakenteidenDynamiikkaStr TEXT,
  Rakenteet TEXT
);

CREATE TABLE clsTilat (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  TotSahkoKuormaPros REAL,
  KaytaTotSahkoKuormia BOOLEAN
);

CREATE TABLE clsToimenpiteidenJarjestelija (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  ValitutToimenpiteet TEXT,
  NaytaToimenpiteetStr TEXT,
  NaytaToimenpiteetID INTEGER,
  TaulukonNakymaStr TEXT,
  TaulukonNakymaTyyppiID INTEGER
);

CREATE TABLE clsToteutuneetKulutukset (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  KulutusTietojenViimVuosi INTEGER
);

CREATE TABLE clsToteutunutKulutus (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Lampo REAL,
  Sahko REAL,
  Vesi REAL,
  LammTarveLuku REAL,
  KaytaVertailuVuotena BOOLEAN
);

CREATE TABLE clsValittuToimenpide (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  TiedotUpToDate BOOLEAN,
  SaastoPatoTeho REAL,
  SaastoLoisTeho REAL,
  SaastoLampoteho REAL,
  Investointi REAL,
  Takaisinmaksuaika REAL,
  KustannusSaastoYhteensa REAL,
  KustannusSaastoVesi REAL,
  KustannusSaastoSahkoLoisTeho REAL,
  KustannusSaastoSahkoPatoTeho REAL,
  KustannusSaastoSahkoEnergia REAL,
  KustannusSaastoLampoTeho REAL,
  KustannusSaastoLampoEnergia REAL,
  SaastoVedenKulutus REAL,
  SaastoSahkoEnergia REAL,
  SaastoLampoEnergia REAL,
  Tyyppi INTEGER,
  ToimenpidesKey TEXT,
  JalkeensKey TEXT,
  sKey TEXT,
  Nimi TEXT
);

CREATE TABLE clsValitutToimenpiteet (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  LaskelmatUpToDate BOOLEAN
);

CREATE TABLE clsVedenKulutusryhma (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  VedenTiedot TEXT,
  KulutusRyhma TEXT,
  sKey TEXT,
  KulutusRyhmaTyyppi INTEGER,
  LaskentaperusteID INTEGER,
  LaskentaperusteStr TEXT,
  LaskentaperusteNumber REAL,
  Laskentayksikko REAL,
  LaskentayksikonTeksti TEXT,
  KayttokuvausKertaaD REAL,
  KayttokuvausDpA REAL,
  Tasauskerroin REAL,
  VedenKayttolampotila REAL,
  LampimanVedenOsuus REAL,
  LammityksessaHyodynnettavaOsuus REAL
);

CREATE TABLE clsVedenKulutusryhmat (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  LKVTiedot TEXT,
  ProsessiVedenTiedot TEXT,
  LKVKiertoKayttoAika REAL,
  LKVKiertoJaahtyma REAL,
  LKVKiertoVirtaama REAL
);

CREATE TABLE clsVedenTiedot (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  KylmanLampotila REAL,
  LamminLampotila REAL,
  Sahkolammitys BOOLEAN
);

CREATE TABLE clsVesiListaItem (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Parent TEXT,
  NimiTeksti TEXT,
  ItemTyyppi INTEGER,
  Vuosikulutus REAL,
  KvVuosikulutus REAL,
  LkvVuosikulutus REAL,
  OnProsessiVesi BOOLEAN,
  SiirrettyToisestaModulista BOOLEAN,
  Collapsed BOOLEAN,
  Visible BOOLEAN
);

CREATE TABLE clsVesitariffi (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT,
  sKey TEXT,
  Nimi TEXT,
  ALV REAL,
  MaksutSisaltavatALVn BOOLEAN,
  Perusmaksu REAL,
  MuuMaksu REAL,
  Vesivirtamaksu REAL,
  VesivirtamaksunMaaraytymisperuste REAL,
  VesiVero REAL,
  VesiveroStr TEXT,
  VesiveroID INTEGER,
  Energiamaksut TEXT
);

CREATE TABLE clsVesitariffit (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER,
  InstanssiId TEXT
);

CREATE TABLE colMateriaalit (
  ObjID TEXT COLLATE NOCASE,
  ParentID TEXT COLLATE NOCASE,
  MyRealNameInParentObj TEXT COLLATE NOCASE,
  OrderID INTEGER
);
