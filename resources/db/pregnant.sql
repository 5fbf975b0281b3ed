-- Template of the pregnancy diary database, at the current level of its tables. The dictionary
-- staging table of dictionary.sql must exist before this script runs.

CREATE TABLE preg (
  pregid integer PRIMARY KEY,
  dat1 integer,
  dat2 integer,
  birthdate integer,
  birthdate2 integer,
  sdat1 text,
  sdat2 text,
  sbirthdate text,
  sbirthdate2 text,
  sex integer,
  rost text,
  ves text,
  metrics integer,
  childname text,
  bodytype integer,
  birthresult text,
  pregguid text,
  startuse text,
  obed text,
  deleted integer
);

CREATE TABLE pregdata (
  datid integer PRIMARY KEY,
  pregid integer,
  dat integer,
  type text,
  value text,
  sdat text,
  pregguid text
);

CREATE TABLE pregconst (coid integer NOT NULL PRIMARY KEY AUTOINCREMENT,coname text,cotype integer NOT NULL,deleted integer NOT NULL DEFAULT 0);
ALTER TABLE pregconst ADD COLUMN coguid text;

CREATE TABLE pregselect (pselid integer PRIMARY KEY AUTOINCREMENT,pregid integer,seltypeid integer,seltagid integer);
ALTER TABLE pregselect ADD COLUMN pregguid text;
ALTER TABLE pregselect ADD COLUMN tagguid text;

CREATE TABLE pregschvatki (
  schid integer PRIMARY KEY,
  pregid integer,
  startdate integer,
  enddate integer,
  length integer,
  startdates text,
  enddates text,
  pregguid text
);

-- The first pregnancy; its dates are set at the first launch.
INSERT INTO preg (pregid, sex, metrics, bodytype, pregguid, deleted)
  VALUES (1, 0, 1, 2, '00000000-0000-0000-0001-000000000001', 0);

-- Seeds: the end of an illness and two illnesses.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (1001, 'Выздоровела<tr>2', 3, 4),
  (1002, 'Простуда', 3, 2),
  (1003, 'ГРИПП', 3, 2);

-- Seeds: medicines.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (1004, 'Арбидол', 101, 0),
  (1005, 'Парацетамол', 101, 0),
  (1006, 'Тавегил', 101, 0);

-- List 1: changes of the body and the course of the pregnancy.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (101, 'Первое шевеление ребенка', 1, 2),
  (102, 'Икота ребенка', 1, 2),
  (103, 'Увеличение груди', 1, 2),
  (104, 'Выделение молозива', 1, 2),
  (105, 'Растяжки на коже', 1, 2),
  (106, 'Пигментация кожи', 1, 2),
  (107, 'Темная полоса на животе', 1, 2),
  (108, 'Отеки ног', 1, 2),
  (109, 'Изменение вкусовых предпочтений', 1, 2),
  (110, 'Учащенное мочеиспускание', 1, 2),
  (111, 'Тренировочные схватки', 1, 2),
  (112, 'Опущение живота', 1, 2),
  (113, 'Отхождение слизистой пробки', 1, 2),
  (114, 'Отхождение околоплодных вод', 1, 2);

-- List 2: ailments and feelings.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (201, 'Хорошее самочувствие', 2, 2),
  (202, 'Тошнота', 2, 2),
  (203, 'Рвота', 2, 2),
  (204, 'Изжога', 2, 2),
  (205, 'Головокружение', 2, 2),
  (206, 'Головная боль', 2, 2),
  (207, 'Слабость', 2, 2),
  (208, 'Сонливость', 2, 2),
  (209, 'Бессонница', 2, 2),
  (210, 'Боль в пояснице', 2, 2),
  (211, 'Тянущие боли внизу живота', 2, 2),
  (212, 'Судороги в ногах', 2, 2),
  (213, 'Запор', 2, 2),
  (214, 'Кровоточивость десен', 2, 2),
  (215, 'Заложенность носа', 2, 2),
  (216, 'Одышка', 2, 2),
  (217, 'Плохое настроение', 2, 2),
  (218, 'Раздражительность', 2, 2);

-- List 3: illnesses, beside the seeded ones.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (301, 'ОРВИ', 3, 2),
  (302, 'Ангина', 3, 2),
  (303, 'Бронхит', 3, 2),
  (304, 'Гайморит', 3, 2),
  (305, 'Цистит', 3, 2),
  (306, 'Пиелонефрит', 3, 2),
  (307, 'Молочница', 3, 2),
  (308, 'Анемия', 3, 2),
  (309, 'Гестационный диабет', 3, 2),
  (310, 'Гестоз', 3, 2),
  (311, 'Герпес', 3, 2),
  (312, 'Пищевое отравление', 3, 2);

INSERT INTO pregconst (coid, coname, cotype, deleted, coguid)
  SELECT coid, coname, cotype, deleted, coguid FROM entry;
