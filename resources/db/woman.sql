-- Template of the woman's cycle diary database, at the current level of its tables. The
-- dictionary staging table of dictionary.sql must exist before this script runs.

CREATE TABLE woman (
  womid integer PRIMARY KEY,
  birthday integer,
  sbirthdate text,
  body integer,
  height text,
  womguid text,
  startuse text,
  obed text
);

-- The cycle queries select on womid=1, so a new row must read 1 there without being told.
CREATE TABLE womdata (
  datid integer PRIMARY KEY,
  womid integer DEFAULT 1,
  dat integer,
  type text,
  value text,
  sdat text,
  womguid text
);

CREATE TABLE womconst (coid integer NOT NULL PRIMARY KEY AUTOINCREMENT,coname text,cotype integer NOT NULL,deleted integer NOT NULL DEFAULT 0);
ALTER TABLE womconst ADD COLUMN coguid text;

-- The one profile; its date of birth is set by the user.
INSERT INTO woman (womid, body, womguid) VALUES (1, 2, '00000000-0000-0000-0001-000000000001');

-- Seeds: medicines.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (1004, 'Арбидол', 101, 0),
  (1005, 'Парацетамол', 101, 0),
  (1006, 'Тавегил', 101, 0);

-- List 1: ailments.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (101, 'Хорошее самочувствие', 1, 2),
  (102, 'Боль внизу живота', 1, 2),
  (103, 'Боль в пояснице', 1, 2),
  (104, 'Нагрубание молочных желез', 1, 2),
  (105, 'Головная боль', 1, 2),
  (106, 'Мигрень', 1, 2),
  (107, 'Вздутие живота', 1, 2),
  (108, 'Тошнота', 1, 2),
  (109, 'Слабость', 1, 2),
  (110, 'Отеки', 1, 2),
  (111, 'Высыпания на коже', 1, 2),
  (112, 'Повышенный аппетит', 1, 2),
  (113, 'Бессонница', 1, 2),
  (114, 'Раздражительность', 1, 2),
  (115, 'Перепады настроения', 1, 2);

-- List 2: cervical mucus.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (201, 'Отсутствуют', 2, 2),
  (202, 'Скудные', 2, 2),
  (203, 'Липкие', 2, 2),
  (204, 'Кремообразные', 2, 2),
  (205, 'Водянистые', 2, 2),
  (206, 'Тягучие, как яичный белок', 2, 2),
  (207, 'Обильные', 2, 2),
  (208, 'Мутные белые', 2, 2),
  (209, 'Кровянистые мажущие', 2, 2);

-- List 3: sexual activity.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (301, 'Незащищенный половой акт', 3, 2),
  (302, 'С презервативом', 3, 2),
  (303, 'Прерванный половой акт', 3, 2),
  (304, 'Гормональная контрацепция', 3, 2),
  (305, 'Внутриматочная спираль', 3, 2),
  (306, 'Экстренная контрацепция', 3, 2),
  (307, 'Оргазм', 3, 2),
  (308, 'Болезненный половой акт', 3, 2),
  (309, 'Повышенное либидо', 3, 2),
  (310, 'Сниженное либидо', 3, 2);

INSERT INTO womconst (coid, coname, cotype, deleted, coguid)
  SELECT coid, coname, cotype, deleted, coguid FROM entry;
