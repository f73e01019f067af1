-- Defaults for basic data and the first model.
CREATE TABLE RakenneTyyppiratkaisut (
    Id INTEGER PRIMARY KEY,
    USRakenneID TEXT NOT NULL,
    IkkRakenneID TEXT NOT NULL,
    APRakenneID TEXT NOT NULL,
    YPRakenneID TEXT NOT NULL,
    OviRakenneID TEXT NOT NULL
);
CREATE TABLE RakennustyyppienOletusarvot (
    KayttotarkoitusID INTEGER NOT NULL,
    RakenneTyyppiRatkaisuID INTEGER NOT NULL,
    Rakennusv_alk INTEGER NOT NULL,
    Rakennusv_lop INTEGER NOT NULL,
    PRIMARY KEY (KayttotarkoitusID, Rakennusv_alk)
);
-- Areas of structures, m2 per m2 of gross floor area.
CREATE TABLE RakenteidenMenekit (
    Id INTEGER PRIMARY KEY,
    USMenekki REAL NOT NULL,
    IkkMenekki REAL NOT NULL,
    APMenekki REAL NOT NULL,
    YPMenekki REAL NOT NULL,
    OviMenekki REAL NOT NULL
);
-- Degree days of measured years, K d. Luku stands at the level of the program's normal-year figures.
CREATE TABLE Lammitystarveluku (
    PaikkakuntaID INTEGER NOT NULL,
    Vuosi INTEGER NOT NULL,
    Luku REAL NOT NULL,
    S17 REAL NOT NULL,  -- as measured at the station
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL,  -- how sure S17 is
    PRIMARY KEY (PaikkakuntaID, Vuosi)
);
-- What buildings of a use type usually use in a year, to tell of a measured figure that is out of it. Bounds beyond
-- which a figure deserves a second look, no quartiles. A use type may have several rows, such as sub-kinds.
CREATE TABLE Ominaiskulutus (
    Ryhma TEXT NOT NULL,
    Koodit TEXT NOT NULL CHECK (Koodit <> ''),  -- use types, divided by ";"
    Suure TEXT NOT NULL CHECK (Suure IN ('lampo', 'sahko', 'vesi')),
    Yksikko TEXT NOT NULL CHECK (Yksikko IN ('kWh/m²,a', 'kWh/m³,a', 'dm³/m³,a')),
    Alaraja REAL NOT NULL CHECK (Alaraja >= 0),
    Keskimmainen REAL NOT NULL CHECK (Keskimmainen BETWEEN Alaraja AND Ylaraja),
    Ylaraja REAL NOT NULL,
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL,  -- how sure the figures are
    PRIMARY KEY (Ryhma, Koodit, Suure, Yksikko)
);
CREATE TEMP TABLE Mitattu (PaikkakuntaID INTEGER, Vuosi INTEGER, S17 REAL, Lahde TEXT, Tila TEXT);
-- Tasokerroin: the locality's normal-year figure of the program / the normal of the same years at the station measured.
CREATE TEMP TABLE Paikkakunta (Numero INTEGER PRIMARY KEY, Nimi TEXT NOT NULL, Tasokerroin REAL NOT NULL);
CREATE TEMP TABLE Kayttotarkoitus (Koodi INTEGER PRIMARY KEY, Nimi TEXT NOT NULL, Ryhma TEXT NOT NULL,
                                   Kayttoryhma TEXT NOT NULL, Hakusanat TEXT NOT NULL);
-- The solutions of a group of use types in an era of the building code.
CREATE TEMP TABLE Oletusrakenne (
    Id INTEGER PRIMARY KEY,
    Ryhma TEXT NOT NULL,
    Rakennusv_alk INTEGER NOT NULL,
    Rakennusv_lop INTEGER NOT NULL,
    USRakenneID TEXT NOT NULL,
    IkkRakenneID TEXT NOT NULL,
    APRakenneID TEXT NOT NULL,
    YPRakenneID TEXT NOT NULL,
    OviRakenneID TEXT NOT NULL,
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL  -- how sure the choice is
);
