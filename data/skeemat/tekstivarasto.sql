-- User-interface texts. Every table has one text column per language; Kieli names the one in use.
CREATE TABLE Kieli (Kielitunnus TEXT NOT NULL);
CREATE TABLE LumivirtaResurssit (Id INTEGER PRIMARY KEY, Suomi TEXT);
CREATE TABLE Combotaulu (
    Id INTEGER PRIMARY KEY,
    frmName TEXT NOT NULL COLLATE NOCASE,
    cmbName TEXT NOT NULL COLLATE NOCASE,
    Suomi TEXT NOT NULL DEFAULT '',
    Hakusanat TEXT NOT NULL DEFAULT ''  -- everyday words by which the row is found as well, divided by ";"
);
CREATE INDEX CombotaulunListat ON Combotaulu (frmName, cmbName);
-- Names of the members of the model's classes as a person knows them. Kuvio: how a number is shown. Valinnat: what the
-- numbers of a choice mean, in order, divided by ";", or the form and control of its list, "frmTila.cmbSaatotapa".
CREATE TABLE Ominaisuus (
    Luokka TEXT NOT NULL,
    Ominaisuus TEXT NOT NULL,
    Suomi TEXT NOT NULL,
    Kuvio TEXT NOT NULL DEFAULT '### ##0.##',
    Valinnat TEXT NOT NULL DEFAULT '',
    PRIMARY KEY (Luokka, Ominaisuus)
);
-- ErrorLevel: 1 = an error that refuses something, 2 = a notice.
CREATE TABLE Errortaulu (
    Id INTEGER PRIMARY KEY,
    ErrorCode INTEGER NOT NULL UNIQUE,
    ErrorLevel INTEGER NOT NULL CHECK (ErrorLevel IN (1, 2)),
    Suomi TEXT NOT NULL
);
CREATE TABLE HelppiIDt (
    Formi TEXT PRIMARY KEY COLLATE NOCASE,
    HelpID INTEGER NOT NULL,
    HelpID2 INTEGER,
    HelpID3 INTEGER
);
INSERT INTO Kieli VALUES ('Suomi');
CREATE TEMP TABLE Kayttotarkoitus (Koodi INTEGER PRIMARY KEY, Nimi TEXT NOT NULL, Ryhma TEXT NOT NULL,
                                   Kayttoryhma TEXT NOT NULL, Hakusanat TEXT NOT NULL);
CREATE TEMP TABLE Paikkakunta (Numero INTEGER PRIMARY KEY, Nimi TEXT NOT NULL, Tasokerroin REAL NOT NULL);
