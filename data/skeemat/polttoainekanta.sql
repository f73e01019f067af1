-- Energy forms: the standard base and the user's own have the same tables. Impacts are per MWh bought.
CREATE TABLE Asetukset (Versio INTEGER NOT NULL);
CREATE TABLE Energiamuoto (
    Id INTEGER PRIMARY KEY,
    sKey TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
    Nimi TEXT NOT NULL,
    Kuvaus TEXT NOT NULL DEFAULT '',
    Yksikko TEXT NOT NULL DEFAULT '',
    YlempiLampoArvo REAL NOT NULL DEFAULT 0,
    AlempiLampoArvo REAL NOT NULL DEFAULT 0,
    HappamoituminenSOxekv REAL NOT NULL DEFAULT 0,          -- kg SO2 equivalent
    Hyotysuhde REAL NOT NULL DEFAULT 0,                     -- per cent over the year
    IlmastonLampeneminenCO2ekv REAL NOT NULL DEFAULT 0,     -- kg CO2
    Kuivatiheys REAL NOT NULL DEFAULT 0,                    -- kg/m3
    Massa REAL NOT NULL DEFAULT 0,                          -- kg of fuel
    OksidanttienMuodostus REAL NOT NULL DEFAULT 0,          -- kg ethene equivalent
    OsuusNettotarpeesta REAL NOT NULL DEFAULT 0,            -- per cent
    Tyyppi INTEGER NOT NULL DEFAULT 0,
    UusiutumatonEnergia REAL NOT NULL DEFAULT 0,            -- MJ
    UusiutumattomatRaakaaineet REAL NOT NULL DEFAULT 0,     -- kg
    UusiutuvaEnergia REAL NOT NULL DEFAULT 0,               -- MJ
    UusiutuvatRaakaaineet REAL NOT NULL DEFAULT 0,          -- kg
    Vakiohäviöt REAL NOT NULL DEFAULT 0,
    VarastoitunutCO2 REAL NOT NULL DEFAULT 0,               -- kg CO2
    LiittyyLammitykseen BOOLEAN NOT NULL DEFAULT 0,         -- -1: heating
    LampoArvonYksikko TEXT NOT NULL DEFAULT '',
    Lahde TEXT NOT NULL DEFAULT ''
);
