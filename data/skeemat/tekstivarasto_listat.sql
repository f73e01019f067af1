-- The two lists that have tables of their own.
INSERT INTO Combotaulu (frmName, cmbName, Suomi)
SELECT 'frmPerustiedot', 'cmbKayttotarkoitus', Nimi FROM Kayttotarkoitus ORDER BY Koodi;
INSERT INTO Combotaulu (frmName, cmbName, Suomi)
SELECT 'frmPerustiedot', 'cmbPaikkakunta', Nimi FROM Paikkakunta ORDER BY Numero;
