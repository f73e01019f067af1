-- One solution per era of the building code; an era serves every use type alike.
INSERT INTO RakenneTyyppiratkaisut
SELECT Id, USRakenneID, IkkRakenneID, APRakenneID, YPRakenneID, OviRakenneID FROM Aikakausi ORDER BY Id;
INSERT INTO RakennustyyppienOletusarvot
SELECT Koodi, Id, Rakennusv_alk, Rakennusv_lop FROM Kayttotarkoitus, Aikakausi ORDER BY Koodi, Rakennusv_alk;
-- Means of ten typical Finnish building models of 160 to 5200 m2: an assumption, the same for every era.
INSERT INTO RakenteidenMenekit SELECT Id, 0.41, 0.13, 0.51, 0.51, 0.01 FROM RakenneTyyppiratkaisut ORDER BY Id;
