-- Typical Finnish tariffs, from which a tariff of an object can be filled. Amounts in euros without VAT and without
-- electricity tax. Rows stand in the order of showing.
CREATE TABLE Tariffi (
    Id INTEGER PRIMARY KEY,
    Laji INTEGER NOT NULL CHECK (Laji IN (0, 1, 2)),  -- 0 heat, 1 electricity transfer, 2 electricity sales
    Nimi TEXT NOT NULL UNIQUE,
    Maksu1Nimi TEXT NOT NULL,  -- energy fees: €/MWh and the share of the energy billed at the price, %
    Maksu1Hinta REAL NOT NULL CHECK (Maksu1Hinta > 0),
    Maksu1Osuus REAL NOT NULL CHECK (Maksu1Osuus > 0),
    Maksu2Nimi TEXT NOT NULL DEFAULT '',
    Maksu2Hinta REAL NOT NULL DEFAULT 0,
    Maksu2Osuus REAL NOT NULL DEFAULT 0,
    Maksu3Nimi TEXT NOT NULL DEFAULT '',
    Maksu3Hinta REAL NOT NULL DEFAULT 0,
    Maksu3Osuus REAL NOT NULL DEFAULT 0,
    Maksu4Nimi TEXT NOT NULL DEFAULT '',
    Maksu4Hinta REAL NOT NULL DEFAULT 0,
    Maksu4Osuus REAL NOT NULL DEFAULT 0,
    Tehomaksu REAL NOT NULL DEFAULT 0,             -- €/kW,a
    Tehomaksunperuste REAL NOT NULL DEFAULT 0,     -- kW; assumed, to be put right
    Loistehomaksu REAL NOT NULL DEFAULT 0,         -- €/kVAr,a
    Loistehomaksunperuste REAL NOT NULL DEFAULT 0, -- kVAr; assumed, to be put right
    Perusmaksu REAL NOT NULL DEFAULT 0,            -- €/a
    MuuMaksu REAL NOT NULL DEFAULT 0,              -- €/a
    Energiavero REAL NOT NULL DEFAULT 0,           -- tax of a fuel, €/MWh
    Veroluokka INTEGER NOT NULL DEFAULT 0 CHECK (Veroluokka IN (0, 1, 2)),  -- electricity tax class; 0: no such tax
    Hintavuosi INTEGER NOT NULL,
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL,  -- how sure the prices are
    CHECK ((Veroluokka > 0) = (Laji = 1)),  -- the network company bills the tax, once
    CHECK (Maksu1Osuus + Maksu2Osuus + Maksu3Osuus + Maksu4Osuus = 100),
    CHECK ((Tehomaksu > 0) = (Tehomaksunperuste > 0) AND (Loistehomaksu > 0) = (Loistehomaksunperuste > 0))
);
CREATE TABLE Vesitariffi (
    Id INTEGER PRIMARY KEY,
    Nimi TEXT NOT NULL UNIQUE,
    PuhdasVesi REAL NOT NULL CHECK (PuhdasVesi > 0),  -- €/m³
    Jatevesi REAL NOT NULL CHECK (Jatevesi > 0),      -- €/m³
    Perusmaksu REAL NOT NULL DEFAULT 0,               -- water and sewer together, €/a; 0: not known
    Hintavuosi INTEGER NOT NULL,
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL
);
-- Electricity tax with the security levy, and VAT, by the days they are in force.
CREATE TABLE Vero (
    Nimike TEXT NOT NULL,  -- sahkovero1, sahkovero2, alv, alv_lampo, alv_vesi, alv_siirto, alv_myynti
    Nimi TEXT NOT NULL,
    Arvo REAL NOT NULL CHECK (Arvo > 0),
    Yksikko TEXT NOT NULL,
    Alkaa TEXT NOT NULL,                 -- YYYY-MM-DD
    Paattyy TEXT NOT NULL DEFAULT '9999-12-31',  -- last day
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL,
    PRIMARY KEY (Nimike, Alkaa),
    CHECK (Alkaa < Paattyy)
);
