-- Captions and icons of everything that a history can hold.
-- `urgency` orders the stations of a run that is in progress; of several runs the one of the lowest `weight` is shown.
CREATE TEMP TABLE group_look (grp PRIMARY KEY, caption, icon, run_icon, urgency, weight);
INSERT INTO group_look VALUES
  (1, 'OK', 'User_Ok', 'ProcessOk', 5, 4), (2, 'NOT OK', 'User_NoOk', 'ProcessNONOK', 2, 1),
  (3, 'In progress', 'User_Inprogress', 'ProcessStart', 1, 2), (4, 'Not executed', 'User_NoExecute', '', 4, 5),
  (5, 'Unknown', 'User_Undefined', 'ProcessUndefined', 3, 3);

CREATE TEMP TABLE wait_look (wait_state PRIMARY KEY, caption, icon, run_icon);
INSERT INTO wait_look VALUES
  ('Waiting com', 'Waiting for connection', 'User_WaitingCom', 'ProcessWaitingCom'),
  ('Waiting station in com', 'Waiting for station report, online', 'User_WaitingStation', 'ProcessWaitingStation'),
  ('Waiting station out com', 'Waiting for station report, offline', 'User_WaitingStation', 'ProcessWaitingStation'),
  ('Waiting execution in com', 'Waiting for online execution', 'User_WaitingExecution', 'ProcessWaitingExecution'),
  ('Waiting execution out com', 'Waiting for delayed execution', 'User_WaitingExecution', 'ProcessWaitingExecution'),
  ('Waiting prerequisite', 'Waiting for prerequisites to be met', 'User_WaitingPrerequisite',
   'ProcessWaitingPrerequisite'),
  ('To run', 'In progress', 'User', 'ProcessStart');

-- Types without a display name have pictures all the same. Stations start those of the last column by themselves.
CREATE TEMP TABLE task_look (type PRIMARY KEY, name, icon, own DEFAULT 0);
INSERT INTO task_look (type, name, icon) VALUES
  ('BackupServer', '', 'BackupServer'), ('BackupStation', '', 'BackupStation'),
  ('BatchServer', 'Server program', 'ProgramServer'), ('BatchStation', 'Station program', 'ProgramStation'),
  ('ControlServer', 'Server test', 'ControlServer'), ('ControlStation', 'Station test', 'ControlStation'),
  ('ExportSQLToFileServer', 'SQL export to file on server', 'ExportSQLServer'),
  ('ExportSQLToFileStation', 'SQL export to file on station', 'ExportSQLStation'),
  ('FileManagementServer', 'Server file management', 'FileManagementServer'),
  ('FileManagementStation', 'Station file management', 'FileManagementStation'),
  ('FtpExplicitServer', 'Server FTP', 'FTPServer'), ('FtpExplicitStation', 'Station FTP', 'FTPStation'),
  ('Inventory', 'Inventory', 'ProcessInventory'), ('Logiciel', 'Software distribution', 'Softdist'),
  ('MailAgent', 'Messaging', 'Message'), ('ManageServer', 'Server administration', 'ManagementServer'),
  ('ManageStation', 'Station administration', 'ManagementStation'),
  ('MessageQueuing', 'Message queuing', 'MessageQueuing'), ('Restore', '', 'RestoreStation'),
  ('SqlServer', '', 'SynchroSQLServer'), ('SqlStation', '', 'SynchroSQLStation'),
  ('SupervisionServer', 'Server monitoring', 'SupervisionServer'),
  ('SupervisionStation', 'Station monitoring', 'SupervisionStation'),
  ('Synchro', 'Standard transfer', 'ExchangeFolder'), ('Telecollecte', 'Remote collect', 'Telecol'),
  ('Teledistribution', 'Remote distribution', 'Teledist'), ('TransferSpecific', 'Specific transfer', 'Transfer');
UPDATE task_look SET own = 1
WHERE type IN ('ControlStation', 'ExportSQLToFileStation', 'FtpExplicitStation', 'BatchStation');

CREATE TEMP TABLE step_look (kind PRIMARY KEY, icon);
INSERT INTO step_look VALUES (0, 'Step'), (1, 'StepCom'), (2, 'StepFTP'), (3, 'StepMailNotes'), (4, 'StepMailOEX');
