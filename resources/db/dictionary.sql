-- Staging of the dictionary entries that a template brings. Each edition's script adds its own
-- entries here and copies the whole into its dictionary table, which gives every entry its guid
-- by one rule:
--   coid below 1000: an entry of the template itself, guid of group 2 with the coid, so that an
--     old integer index finds it;
--   coid 1000 + n: the seeded entry number n, guid of group 4 with n.
-- Template entries of the lists 1 to 3 take the coids 101-199, 201-299 and 301-399, the child's
-- blood groups 31-39 and its allergens 41-99.
CREATE TEMP TABLE entry (
  coid integer PRIMARY KEY,
  coname text NOT NULL,
  cotype integer NOT NULL,
  deleted integer NOT NULL,
  coguid text GENERATED ALWAYS AS (
    CASE WHEN coid < 1000
      THEN '00000000-0000-0000-0002-' || substr('000000000000' || coid, -12)
      ELSE '00000000-0000-0000-0004-' || substr('000000000000' || (coid - 1000), -12)
    END)
);

-- Seeds of every edition: how often a medicine is taken.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (1010, 'Ежедневно', 102, 0),
  (1011, 'Через день', 102, 0),
  (1012, 'Через неделю', 102, 0),
  (1013, '2 раза в неделю', 102, 0),
  (1014, '3 раза в неделю', 102, 0);

-- Seeds of every edition: how a medicine is taken with regard to meals.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (1015, 'Независимо от еды', 103, 0),
  (1016, 'Перед едой', 103, 0),
  (1017, 'Во время еды', 103, 0),
  (1018, 'После еды', 103, 0),
  (1019, 'За 15 минут до еды', 103, 0),
  (1020, 'За 30 минут до еды', 103, 0),
  (1021, 'За 1 час до еды', 103, 0),
  (1022, 'Через 15 минут после еды', 103, 0),
  (1023, 'Через 30 минут после еды', 103, 0),
  (1024, 'Через 1 час после еды', 103, 0);

-- Seeds of every edition: analyses.
INSERT INTO entry (coid, coname, cotype, deleted) VALUES
  (1031, 'Клинический анализ крови', 200, 0),
  (1032, 'Общий анализ крови', 200, 0),
  (1033, 'Общий анализ мочи', 200, 0);
