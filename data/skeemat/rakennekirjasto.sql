-- Structure library: the standard one and the user's own have the same tables.
CREATE TABLE Asetukset (Versio TEXT NOT NULL);
CREATE TABLE Materiaali (
    Id TEXT PRIMARY KEY,
    Nimi TEXT NOT NULL,
    Ryhma TEXT NOT NULL DEFAULT '',
    Lambda REAL NOT NULL DEFAULT 0,         -- design thermal conductivity, W/mK
    Tiheys REAL NOT NULL DEFAULT 0,         -- kg/m3
    Ominaislampo REAL NOT NULL DEFAULT 0,   -- kJ/kgK
    MuKuiva REAL NOT NULL DEFAULT 0,        -- water-vapour resistance factor, dry cup
    MuMarka REAL NOT NULL DEFAULT 0,        -- the same, wet cup
    Lahde TEXT NOT NULL DEFAULT '',
    Tila TEXT NOT NULL DEFAULT ''           -- how sure the figures are
);
-- Environmental impact of the production of one kilogram (modules A1-A3). Null: not known, which isn't nought.
CREATE TABLE Materiaalivaikutus (
    MateriaaliId TEXT PRIMARY KEY,
    Nimi TEXT NOT NULL,                     -- also of products that the library has no material of
    UusiutumatonEnergia REAL,               -- MJ/kg
    UusiutuvaEnergia REAL,                  -- MJ/kg
    UusiutumattomatRaakaaineet REAL,        -- kg/kg
    UusiutuvatRaakaaineet REAL,             -- kg/kg
    IlmastonLampeneminenCO2ekv REAL,        -- g of CO2 equivalent, fossil
    VarastoitunutCO2 REAL,                  -- g of CO2 held in the product, never taken off the former
    HappamoituminenSOxekv REAL,             -- g of SO2 equivalent
    OksidanttienMuodostus REAL,             -- g of ethene equivalent
    Particle REAL,                          -- g, process dust
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL                      -- how sure the figures are
);
CREATE TABLE Rakenne (
    Id TEXT PRIMARY KEY,
    Rakennetyyppi TEXT NOT NULL CHECK (Rakennetyyppi IN ('Ulkoseinä', 'Yläpohja', 'Alapohja', 'Ikkuna', 'Ovi',
                                                         'KantavaValiseinä', 'KevytValiseinä', 'Välipohja')),
    Aikakausi TEXT NOT NULL DEFAULT '',
    VuosiAlku INTEGER NOT NULL DEFAULT 0,
    VuosiLoppu INTEGER NOT NULL DEFAULT 0,
    Nimi TEXT NOT NULL,
    Kuvaus TEXT NOT NULL DEFAULT '',
    U_arvo REAL NOT NULL DEFAULT 0,                  -- W/m2K
    U_arvoAnnettu INTEGER NOT NULL DEFAULT 0,        -- -1: U is given, 0: it follows from the layers
    OnIkkuna INTEGER NOT NULL DEFAULT 0,             -- -1: a window solution
    PintavastusSisa REAL NOT NULL DEFAULT 0,         -- m2K/W
    PintavastusUlko REAL NOT NULL DEFAULT 0,         -- m2K/W
    Paksuus REAL NOT NULL DEFAULT 0,                 -- mm
    KerrostenMassaYht REAL NOT NULL DEFAULT 0,       -- kg/m2
    Paloluokka TEXT NOT NULL DEFAULT '',
    Rw REAL NOT NULL DEFAULT 0,                      -- dB
    Aurinkoenergianlapaisy REAL NOT NULL DEFAULT 0,  -- total solar transmittance at normal incidence, per cent
    Karmikerroin REAL NOT NULL DEFAULT 0,            -- share of the window that is glass, per cent
    Verhokerroin REAL NOT NULL DEFAULT 0,            -- share that the curtains let through, per cent
    Kokonaisvarjostuskerroin REAL NOT NULL DEFAULT 0,
    Pistemaiset REAL NOT NULL DEFAULT 0,             -- number of point thermal bridges
    PistemaisetWpK REAL NOT NULL DEFAULT 0,          -- W/K each
    Viivamaiset REAL NOT NULL DEFAULT 0,             -- length of line thermal bridges, m
    ViivamaisetWpK REAL NOT NULL DEFAULT 0,          -- W/mK
    Lahde TEXT NOT NULL DEFAULT ''
);
CREATE TABLE Kerros (
    RakenneId TEXT NOT NULL,
    Jarjestys INTEGER NOT NULL,                    -- 1 is the innermost
    MateriaaliId TEXT NOT NULL,
    Paksuus REAL NOT NULL DEFAULT 0,               -- mm
    UArvoon INTEGER NOT NULL DEFAULT -1,           -- -1: counts towards U
    Yhtenainen INTEGER NOT NULL DEFAULT -1,        -- 0: the second material takes its share of the area
    LisamateriaaliId TEXT,
    LisamateriaalinOsuus REAL NOT NULL DEFAULT 0,  -- per cent of the area
    Lammonvastus REAL,                             -- m2K/W of an air layer, else null
    PRIMARY KEY (RakenneId, Jarjestys)
);
-- Resistance of an unventilated air layer by the direction of the heat flow, m2K/W; thickness in mm.
CREATE TABLE Ilmakerros (
    Paksuus REAL PRIMARY KEY,
    LammonvastusVaaka REAL NOT NULL,
    LammonvastusYlos REAL NOT NULL,
    LammonvastusAlas REAL NOT NULL
);
CREATE TABLE Pintavastus (
    Lampovirta TEXT PRIMARY KEY,
    PintavastusSisa REAL NOT NULL,
    PintavastusUlko REAL NOT NULL
);
