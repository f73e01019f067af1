-- Typical electricity devices and water uses, from which a consumer group can be picked. Rows stand in the order of showing.
CREATE TABLE Kayttotarkoitus (
    Koodi INTEGER PRIMARY KEY,
    Nimi TEXT NOT NULL,
    Ryhma TEXT NOT NULL,
    Kayttoryhma TEXT NOT NULL,  -- use types that have the same devices and water uses
    Hakusanat TEXT NOT NULL
);
CREATE TABLE Sahkolaite (
    Id TEXT NOT NULL UNIQUE,
    Nimi TEXT NOT NULL UNIQUE,
    Haara TEXT NOT NULL CHECK (Haara IN ('Valaistus', 'LVI', 'Muu')),  -- title row of the electricity tree
    Kayttoryhmat TEXT NOT NULL DEFAULT '',  -- divided by ";"; empty: common to all
    Yksikko TEXT NOT NULL,                  -- of the calculation basis; W: by power, kWh: by energy
    Arvo REAL NOT NULL CHECK (Arvo BETWEEN Pienin AND Suurin),
    Maara TEXT NOT NULL,  -- what is counted
    TuntiaVrk REAL NOT NULL CHECK (TuntiaVrk > 0 AND TuntiaVrk <= 24),
    VrkVuosi REAL NOT NULL CHECK (VrkVuosi > 0 AND VrkVuosi <= 366),
    Tasauskerroin REAL NOT NULL CHECK (Tasauskerroin > 0 AND Tasauskerroin <= 1),
    Lammoksi INTEGER NOT NULL CHECK (Lammoksi IN (0, 1)),  -- the electricity is an internal heat gain
    Pienin REAL NOT NULL CHECK (Pienin > 0),               -- usual range of Arvo
    Suurin REAL NOT NULL,
    Hakusanat TEXT NOT NULL,
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL,  -- how sure Arvo is
    CHECK (Yksikko LIKE 'W/%' OR Yksikko LIKE 'kWh/%' AND TuntiaVrk = 1 AND VrkVuosi = 1)  -- the dialog hides the use times
);
CREATE TABLE Vedenkaytto (
    Id TEXT NOT NULL UNIQUE,
    Nimi TEXT NOT NULL UNIQUE,
    Laji TEXT NOT NULL CHECK (Laji IN ('Käyttövesi', 'Prosessivesi')),
    Kayttoryhmat TEXT NOT NULL DEFAULT '',
    Yksikko TEXT NOT NULL,
    Arvo REAL NOT NULL CHECK (Arvo BETWEEN Pienin AND Suurin),
    Maara TEXT NOT NULL,
    KertaaD REAL NOT NULL CHECK (KertaaD > 0),  -- times or hours a day
    VrkVuosi REAL NOT NULL CHECK (VrkVuosi > 0 AND VrkVuosi <= 366),
    Kayttolampotila REAL NOT NULL CHECK (Kayttolampotila BETWEEN 5 AND 70),  -- °C
    Pienin REAL NOT NULL CHECK (Pienin > 0),
    Suurin REAL NOT NULL,
    Hakusanat TEXT NOT NULL,
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL
);
