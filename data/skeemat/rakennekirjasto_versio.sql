-- The leading integer grows when figures of materials change: projects made with a smaller one are offered the new ones.
-- New solutions and materials raise the middle number only, since nothing in a project follows from them.
INSERT INTO Asetukset VALUES ('1.0002.0');
