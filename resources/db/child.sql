-- Template of the child diary database, at the current level of its tables. The dictionary
-- staging table of dictionary.sql must exist before this script runs.

CREATE TABLE child (
  chid integer PRIMARY KEY,
  birthday integer,
  birthtime integer,
  chname text,
  sbirthdate text,
  sbirthtime text,
  sex integer,
  blood text,
  allergen text,
  ves text,
  rost text,
  documents text,
  childguid text,
  startuse text,
  obed text,
  deleted integer
);

CREATE TABLE childdata (
  datid integer PRIMARY KEY,
  chid integer,
  dat integer,
  type text,
  value text,
  sdat text,
  childguid text
);

CREATE TABLE childconst (coid integer NOT NULL PRIMARY KEY AUTOINCREMENT,coname text,cotype integer NOT NULL,deleted integer NOT NULL DEFAULT 0);
ALTER TABLE childconst ADD COLUMN coguid text;

CREATE TABLE childselect (pselid integer PRIMARY KEY AUTOINCREMENT,chid integer,seltypeid integer,seltagid integer);
ALTER TABLE childselect ADD COLUMN childguid text;
ALTER TABLE childselect ADD COLUMN tagguid text;

CREATE TABLE childkorm (koid integer NOT NULL PRIMARY KEY AUTOINCREMENT,kodate integer, kotype integer,kovalue text, chid integer, kosum integer);
ALTER TABLE childkorm ADD COLUMN kodates text;
ALTER TABLE childkorm ADD COLUMN childguid text;

-- The first child, of unknown blood group and without allergens; its dates are set at the
-- first launch.
INSERT INTO child (chid, sex, blood, allergen, childguid, deleted)
  VALUES (1, 0, '00000000-0000-0000-0002-000000000031', '', '00000000-0000-0000-0001-000000000001', 0);

-- Seeds: medicines.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (1007, 'Виферон', 101, 0),
  (1008, 'Нурофен', 101, 0),
  (1009, 'Парацетамол', 101, 0);

-- Seeds: documents.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (1051, 'Полис ОМС', 201, 0),
  (1052, 'Свидетельство о рождении', 201, 0);

-- Seeds: milk formulas, porridges, purées, other foods with their measure.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (1061, 'Нутрилон 1', 6, 0),
  (1062, 'Хайнц Infanta 1', 6, 0),
  (1063, 'Хипп 1 Combiotic', 6, 0),
  (1064, 'Ремедиа гречневая безмолочная', 7, 0),
  (1065, 'Хайнц гречневая гипоалергенная', 7, 0),
  (1066, 'Малютка (нутриция) гречневая молочная', 7, 0),
  (1067, 'Бабушкино лукошко цветная капуста', 8, 0),
  (1068, 'Гербер броколи', 8, 0),
  (1069, 'Семпер цукини с картофелем', 8, 0),
  (1070, 'Сцеженное молоко<tr>2', 6, 4),
  (1071, 'Желток яйца (шт.)<tr>12', 9, 5),
  (1072, 'Агуша яблочный сок (мил.)<tr>10', 9, 5);

-- List 1: achievements.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (101, 'Держит голову', 1, 2),
  (102, 'Улыбается', 1, 2),
  (103, 'Гулит', 1, 2),
  (104, 'Смеется вслух', 1, 2),
  (105, 'Берет игрушку в руку', 1, 2),
  (106, 'Переворачивается со спины на живот', 1, 2),
  (107, 'Переворачивается с живота на спину', 1, 2),
  (108, 'Узнает близких', 1, 2),
  (109, 'Лепечет', 1, 2),
  (110, 'Сидит без поддержки', 1, 2),
  (111, 'Ползает', 1, 2),
  (112, 'Встает у опоры', 1, 2),
  (113, 'Ходит с поддержкой', 1, 2),
  (114, 'Ходит самостоятельно', 1, 2),
  (115, 'Говорит первые слова', 1, 2),
  (116, 'Пьет из чашки', 1, 2),
  (117, 'Ест ложкой', 1, 2),
  (118, 'Показывает пальцем', 1, 2);

-- List 2: ailments.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (201, 'Насморк', 2, 2),
  (202, 'Кашель', 2, 2),
  (203, 'Колики', 2, 2),
  (204, 'Вздутие живота', 2, 2),
  (205, 'Срыгивание', 2, 2),
  (206, 'Рвота', 2, 2),
  (207, 'Диарея', 2, 2),
  (208, 'Запор', 2, 2),
  (209, 'Сыпь', 2, 2),
  (210, 'Опрелости', 2, 2),
  (211, 'Потница', 2, 2),
  (212, 'Покраснение горла', 2, 2),
  (213, 'Беспокойный сон', 2, 2),
  (214, 'Плохой аппетит', 2, 2),
  (215, 'Капризность', 2, 2),
  (216, 'Беспокойство при прорезывании зубов', 2, 2);

-- List 3: the end of an illness, then illnesses.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (301, 'Выздоровел<tr>2', 3, 4),
  (302, 'ОРВИ', 3, 2),
  (303, 'Простуда', 3, 2),
  (304, 'Грипп', 3, 2),
  (305, 'Ангина', 3, 2),
  (306, 'Бронхит', 3, 2),
  (307, 'Ларингит', 3, 2),
  (308, 'Отит', 3, 2),
  (309, 'Конъюнктивит', 3, 2),
  (310, 'Стоматит', 3, 2),
  (311, 'Ротавирусная инфекция', 3, 2),
  (312, 'Пневмония', 3, 2),
  (313, 'Ветряная оспа', 3, 2),
  (314, 'Краснуха', 3, 2),
  (315, 'Корь', 3, 2),
  (316, 'Скарлатина', 3, 2),
  (317, 'Атопический дерматит', 3, 2);

-- Blood groups (list 4): 31, the default of a child's profile, stands for an unknown group.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (31, 'Не известна', 4, 2),
  (32, '0(I) Rh+', 4, 2),
  (33, '0(I) Rh-', 4, 2),
  (34, 'A(II) Rh+', 4, 2),
  (35, 'A(II) Rh-', 4, 2),
  (36, 'B(III) Rh+', 4, 2),
  (37, 'B(III) Rh-', 4, 2),
  (38, 'AB(IV) Rh+', 4, 2),
  (39, 'AB(IV) Rh-', 4, 2);

-- Allergens (list 5).
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (41, 'Белок коровьего молока', 5, 2),
  (42, 'Куриное яйцо', 5, 2),
  (43, 'Глютен', 5, 2),
  (44, 'Соя', 5, 2),
  (45, 'Рыба', 5, 2),
  (46, 'Морепродукты', 5, 2),
  (47, 'Арахис', 5, 2),
  (48, 'Орехи', 5, 2),
  (49, 'Цитрусовые', 5, 2),
  (50, 'Мед', 5, 2),
  (51, 'Шоколад', 5, 2),
  (52, 'Пыльца растений', 5, 2),
  (53, 'Домашняя пыль', 5, 2),
  (54, 'Шерсть животных', 5, 2),
  (55, 'Пенициллин', 5, 2);

INSERT INTO childconst (coid, coname, cotype, deleted, coguid)
  SELECT coid, coname, cotype, deleted, coguid FROM entry;
