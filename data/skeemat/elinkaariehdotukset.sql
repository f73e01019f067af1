-- Published values that the person may take for the life-cycle reckoning. Rows stand in the order of showing.
CREATE TABLE Oletusarvo (
    Id TEXT NOT NULL UNIQUE,
    Ryhma TEXT NOT NULL CHECK (Ryhma IN ('Pitoaika', 'Korkokanta', 'Lampo', 'Sahko', 'Vesi')),
    Nimi TEXT NOT NULL,
    Arvo REAL NOT NULL CHECK (Arvo BETWEEN Pienin AND Suurin),
    Pienin REAL NOT NULL,  -- usual range of Arvo
    Suurin REAL NOT NULL,
    Yksikko TEXT NOT NULL,
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL  -- how sure Arvo is
);
CREATE TABLE Kayttoika (
    Id TEXT NOT NULL UNIQUE,
    Ryhma TEXT NOT NULL,
    Nimi TEXT NOT NULL,
    Arvo REAL NOT NULL CHECK (Arvo BETWEEN Pienin AND Suurin),
    Pienin REAL NOT NULL,  -- usual range of Arvo
    Suurin REAL NOT NULL,
    Yksikko TEXT NOT NULL,
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL  -- how sure Arvo is
);
CREATE TABLE Yksikkohinta (
    Id TEXT NOT NULL UNIQUE,
    Ryhma TEXT NOT NULL,
    Nimi TEXT NOT NULL,
    Arvo REAL NOT NULL CHECK (Arvo BETWEEN Pienin AND Suurin),
    Pienin REAL NOT NULL,  -- usual range of Arvo
    Suurin REAL NOT NULL,
    Yksikko TEXT NOT NULL,
    Lahde TEXT NOT NULL,
    Tila TEXT NOT NULL  -- how sure Arvo is
);
