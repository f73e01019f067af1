-- A use type has the solutions of its group in each era of the building code.
INSERT INTO RakenneTyyppiratkaisut
SELECT Id, USRakenneID, IkkRakenneID, APRakenneID, YPRakenneID, OviRakenneID FROM Oletusrakenne ORDER BY Id;
INSERT INTO RakennustyyppienOletusarvot
SELECT Koodi, Id, Rakennusv_alk, Rakennusv_lop FROM Kayttotarkoitus JOIN Oletusrakenne USING (Ryhma)
ORDER BY Koodi, Rakennusv_alk;
-- Means of ten typical Finnish building models of 160 to 5200 m2: an assumption, the same for every era.
INSERT INTO RakenteidenMenekit SELECT Id, 0.41, 0.13, 0.51, 0.51, 0.01 FROM RakenneTyyppiratkaisut ORDER BY Id;
INSERT INTO Lammitystarveluku
SELECT PaikkakuntaID, Vuosi, ROUND(S17 * Tasokerroin), S17,
       Lahde || CASE Tasokerroin WHEN 1 THEN '' ELSE '; asemalla ' || CAST(S17 AS INTEGER) || ', muunnettu normaalivuoden tasolle' END, Tila
FROM Mitattu JOIN Paikkakunta ON Numero = PaikkakuntaID
ORDER BY PaikkakuntaID, Vuosi;
