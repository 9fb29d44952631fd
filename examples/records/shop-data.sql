-- Records for the shop, in SQLite: the same ones each time, made of lists of words. Nobody and nothing in it is real.

PRAGMA foreign_keys = ON;
BEGIN;

INSERT INTO country (code, name, vat_rate) VALUES
    ('AT', 'Austria', 20), ('BE', 'Belgium', 21), ('CH', 'Switzerland', 8), ('DE', 'Germany', 19), ('DK', 'Denmark', 25),
    ('ES', 'Spain', 21), ('FR', 'France', 20), ('GB', 'United Kingdom', 20), ('IE', 'Ireland', 23), ('IT', 'Italy', 22),
    ('NL', 'Netherlands', 21), ('NO', 'Norway', 25), ('PL', 'Poland', 23), ('PT', 'Portugal', 23), ('SE', 'Sweden', 25);

INSERT INTO payment_term (code, name, days) VALUES
    ('ADV', 'In advance', 0), ('CASH', 'Cash on delivery', 0), ('N10', '10 days net', 10), ('N30', '30 days net', 30),
    ('N60', '60 days net', 60);

INSERT INTO shipper (id, name, phone) VALUES
    (1, 'Harbour Freight Line', '0555 010 100'), (2, 'Parcel Post', '0555 010 200'), (3, 'Night Courier', '0555 010 300'),
    (4, 'Collected by the customer', NULL);

INSERT INTO category (id, name, description) VALUES
    (1, 'Desks', 'Desks and tables' || char(10) || 'for one or more people'), (2, 'Chairs', 'With and without arms'),
    (3, 'Shelves', 'Shelves, cupboards and racks'), (4, 'Lamps', 'For desk, floor and ceiling'),
    (5, 'Paper', 'Paper, pads and envelopes'), (6, 'Small things', 'What gets lost');

INSERT INTO employee (id, name, job_title, manager_id, hired_on, works_from, works_until, is_driver) VALUES
    (1, 'Ada Frost', 'Head of sales', NULL, '2004-03-01', '08:00:00', '16:30:00', FALSE),
    (2, 'Ben Marsh', 'Sales', 1, '2006-09-15', '08:30:00', '17:00:00', FALSE),
    (3, 'Cora Field', 'Sales', 1, '2009-01-02', '08:30:00', '17:00:00', FALSE),
    (4, 'Dan Brook', 'Warehouse', 1, '2007-06-01', '06:00:00', '14:30:00', TRUE),
    (5, 'Eve Stone', 'Sales', 2, '2011-11-01', '12:00:00', '20:00:00', FALSE),
    (6, 'Finn Moor', 'Driver', 4, '2012-04-16', '05:30:00', '14:00:00', TRUE);

INSERT INTO warehouse (code, name, town, opens_at, closes_at) VALUES
    ('MAIN', 'Main warehouse', 'Stonehaven', '06:00:00', '20:00:00'), ('DOCK', 'At the docks', 'Leith', '05:00:00', '13:00:00');

INSERT INTO supplier (id, company_name, street, postcode, town, country_code, phone, web_page, delivery_days)
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 12)
SELECT i,
    CASE i % 6 WHEN 0 THEN 'Northern' WHEN 1 THEN 'Oakwood' WHEN 2 THEN 'Brightside' WHEN 3 THEN 'Delta' WHEN 4 THEN 'Ridge'
        ELSE 'Harbour' END || ' ' || CASE WHEN i <= 6 THEN 'Works' ELSE 'Trading' END,
    (i * 3) || ' Mill Lane', 'ML' || i || ' ' || (i % 9 + 1) || 'AB',
    CASE i % 3 WHEN 0 THEN 'Leeds' WHEN 1 THEN 'Aarhus' ELSE 'Lille' END, CASE i % 3 WHEN 0 THEN 'GB' WHEN 1 THEN 'DK' ELSE 'FR' END,
    printf('0555 020 %03d', i * 7), NULL, 7 + i % 4 * 7
FROM n;

INSERT INTO product (id, name, item_number, category_id, supplier_id, unit, price, weight_kg, is_discontinued)
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 72),
    kind(k, category, noun) AS (VALUES (0, 1, 'desk'), (1, 2, 'chair'), (2, 3, 'shelf'), (3, 4, 'lamp'), (4, 5, 'writing pad'),
        (5, 6, 'letter tray')),
    make(m, adjective) AS (VALUES (0, 'Oak'), (1, 'Beech'), (2, 'White'), (3, 'Black'), (4, 'Folding'), (5, 'Large'),
        (6, 'Small'), (7, 'Tall'), (8, 'Low'), (9, 'Round'), (10, 'Travel'), (11, 'Classic'))
SELECT i, adjective || ' ' || noun, printf('%s-%04d', upper(substr(noun, 1, 2)), 1000 + i * 37 % 971), category, i * 5 % 12 + 1,
    CASE category WHEN 5 THEN 'pack' ELSE 'piece' END, round((i * 7919 % 29000) / 100.0 + 4.9, 2), round((i * 31 % 400) / 8.0 + 0.25, 3),
    i % 17 = 0
FROM n JOIN kind ON k = (i - 1) % 6 JOIN make ON m = (i - 1) / 6;

INSERT INTO stock (warehouse_code, product_id, quantity, reorder_level, counted_at)
SELECT w.code, p.id, p.id * 13 % 90, 10 + p.id % 3 * 5, date('2013-01-02', '+' || (p.id % 60) || ' days') || ' 07:30:00'
FROM warehouse w JOIN product p WHERE w.code = 'MAIN' OR p.id % 4 = 0;

INSERT INTO customer (id, name, street, postcode, town, country_code, phone, email, credit_limit, is_active, customer_since, notes)
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 64),
    first(f, word) AS (VALUES (0, 'Alder'), (1, 'Birch'), (2, 'Cedar'), (3, 'Elm'), (4, 'Hazel'), (5, 'Juniper'), (6, 'Linden'),
        (7, 'Maple')),
    second(s, word) AS (VALUES (0, '& Sons'), (1, 'Books'), (2, 'Hotel'), (3, 'Dental Care'), (4, 'Engineering'), (5, 'School'),
        (6, 'Bakery'), (7, 'Town Council')),
    place(t, town, country) AS (VALUES (0, 'Stonehaven', 'GB'), (1, 'Galway', 'IE'), (2, 'Düren', 'DE'), (3, 'Århus', 'DK'),
        (4, 'Lyon', 'FR'), (5, 'Gent', 'BE'), (6, 'Kraków', 'PL'), (7, 'Porto', 'PT'), (8, 'Bath', 'GB'), (9, 'Leeds', 'GB'))
SELECT i, first.word || ' ' || second.word, (i * 7 % 90 + 1) || ' ' || CASE i % 3 WHEN 0 THEN 'Harbour Lane' WHEN 1 THEN 'Station Road'
        ELSE 'Market Street' END,
    printf('%05d', i * 1237 % 90000 + 10000), town, country, printf('0555 %03d %03d', i * 11 % 1000, i * 37 % 1000),
    lower(first.word) || i || '@example.org', (i * 3 % 10) * 500, i % 13 <> 0,
    date('2005-01-10', '+' || (i * 41) || ' days'), CASE WHEN i % 9 = 0 THEN 'Rings before delivery.' || char(10) || 'Lift at the back.' END
FROM n JOIN first ON f = (i - 1) / 8 JOIN second ON s = (i - 1) % 8 JOIN place ON t = i * 7 % 10;

INSERT INTO contact (id, customer_id, last_name, first_name, role, phone, email, birthday)
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 96)
SELECT i, (i - 1) % 64 + 1,
    CASE i % 8 WHEN 0 THEN 'Berry' WHEN 1 THEN 'Finch' WHEN 2 THEN 'Heron' WHEN 3 THEN 'Lark' WHEN 4 THEN 'Martin' WHEN 5 THEN 'Rook'
        WHEN 6 THEN 'Swift' ELSE 'Wren' END,
    CASE i % 7 WHEN 0 THEN 'Anna' WHEN 1 THEN 'Björn' WHEN 2 THEN 'Chloé' WHEN 3 THEN 'David' WHEN 4 THEN 'Eve' WHEN 5 THEN 'Fred'
        ELSE 'Grace' END,
    CASE i % 3 WHEN 0 THEN 'Purchasing' WHEN 1 THEN 'Accounts' ELSE 'Owner' END, printf('0555 %03d %03d', i * 17 % 1000, i * 53 % 1000), NULL,
    CASE WHEN i % 4 = 0 THEN date('1950-05-05', '+' || (i * 131) || ' days') END
FROM n;

INSERT INTO orders (id, customer_id, reference, order_date, wanted_date, employee_id, payment_term_code, discount, freight, shipper_id,
    shipped_at, is_paid, notes)
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 320)
SELECT i, i * 29 % 64 + 1, CASE WHEN i % 3 <> 0 THEN printf('PO-%05d', i * 811 % 90000 + 1000) END,
    date('2012-01-03', '+' || (i * 436 / 320) || ' days'), CASE WHEN i % 4 <> 0 THEN date('2012-01-03', '+' || (i * 436 / 320 + 5 + i % 9) || ' days') END,
    CASE i % 4 WHEN 0 THEN 2 WHEN 1 THEN 3 WHEN 2 THEN 5 ELSE 1 END,
    CASE i % 5 WHEN 0 THEN 'ADV' WHEN 1 THEN 'N10' WHEN 2 THEN 'N30' WHEN 3 THEN 'N30' ELSE 'N60' END,
    CASE i % 6 WHEN 0 THEN 5 WHEN 3 THEN 2.5 ELSE 0 END, CASE i % 4 WHEN 3 THEN 0 ELSE 9.5 + i % 5 * 3 END, i % 4 + 1,
    CASE WHEN i <= 300 THEN date('2012-01-03', '+' || (i * 436 / 320 + 3) || ' days') || printf(' %02d:%02d:00', 8 + i % 9, i % 4 * 15) END,
    i <= 290 AND i % 11 <> 0, CASE WHEN i % 20 = 0 THEN 'Customer collects the rest next month.' END
FROM n;

INSERT INTO order_line (order_id, line_number, product_id, quantity, unit_price, discount)
SELECT o.id, l.line, p.id, o.id * l.line % 7 + 1, p.price, 0
FROM orders o JOIN (SELECT 1 AS line UNION ALL SELECT 2 UNION ALL SELECT 3) l ON l.line <= o.id % 3 + 1
    JOIN product p ON p.id = (o.id * 17 + l.line * 23) % 72 + 1;

UPDATE orders SET goods_total = (SELECT round(sum(quantity * unit_price), 2) FROM order_line WHERE order_id = orders.id);

INSERT INTO payment (id, order_id, paid_on, amount, method)
SELECT row_number() OVER (ORDER BY id), id, date(order_date, '+20 days'), round(goods_total * (1 - discount / 100.0) + freight, 2),
    CASE id % 3 WHEN 0 THEN 'card' ELSE 'transfer' END
FROM orders WHERE is_paid;

COMMIT;
