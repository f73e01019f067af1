-- The two lists that have tables of their own.
INSERT INTO Combotaulu (frmName, cmbName, Suomi, Hakusanat)
SELECT 'frmPerustiedot', 'cmbKayttotarkoitus', Nimi, Hakusanat FROM Kayttotarkoitus ORDER BY Koodi;
INSERT INTO Combotaulu (frmName, cmbName, Suomi)
SELECT 'frmPerustiedot', 'cmbPaikkakunta', Nimi FROM Paikkakunta ORDER BY Numero;
