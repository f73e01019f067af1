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
