-- There is none.
INSERT INTO tab VALUES ('System', 1);
