-- The scheduler's log stands without a tree.
INSERT INTO node (list, opened) VALUES ('system', 0);
