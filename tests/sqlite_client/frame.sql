-- What every comparison fills: the nodes that the script looks at, and what the viewer should show. A broken bar, which
-- stands in no text, parts the cells of a line; it becomes a tab in the end.
.mode list

-- The nodes that the script looks at: which list a click on one fills, and whether it is opened before. One without a
-- key is a list that stands without a tree.
CREATE TEMP TABLE node (
  number INTEGER PRIMARY KEY, key, level, list, opened,
  process_id, run, grp, station_id, task_id, task_run_id, step_log_id, record
);
CREATE INDEX temp.node_by_key ON node (key);

-- What the tree shows, and what each list does, line by line; `number` is the node's. The path orders the tree: a
-- child's begins with its parent's.
CREATE TEMP TABLE line (level, path, key PRIMARY KEY, text, icon, bold DEFAULT 0, below DEFAULT 1);
CREATE TEMP TABLE tree_line (line INTEGER PRIMARY KEY, level, expander, text, key, icon, bold);
CREATE TEMP TABLE shown (number, line, failed, icon, key, cells);

-- The captions of each kind of list; `of_nodes`: it shows the nodes below a node.
CREATE TEMP TABLE header (list PRIMARY KEY, text, of_nodes DEFAULT 0);
-- What the frame says; the rows of a list that stands without a tree are counted there, and its first is selected.
CREATE TEMP TABLE tab (caption, without_tree DEFAULT 0);
