import json
import re
import sys
from collections import OrderedDict, namedtuple

from java.lang import IllegalArgumentException, Integer
from java.util import ArrayList, Collections


class Shape(object):
    made = 0

    def __init__(self, *sides):
        Shape.made += 1
        self.sides = sides

    def __repr__(self):
        return '%s%r' % (type(self).__name__, self.sides)

    @property
    def around(self):
        return sum(self.sides)


class Square(Shape):
    def __init__(self, side):
        super(Square, self).__init__(side, side, side, side)


def primes(end):
    found = []
    for n in range(2, end):
        if all(n % p for p in found if p * p <= n):
            found.append(n)
            yield n


def deep(n):
    if n == 0:
        raise ValueError('deep enough')
    try:
        deep(n - 1)
    finally:
        deep.unwound += 1


deep.unwound = 0
try:
    deep(20)
except ValueError as e:
    print e, deep.unwound

print sum(primes(2000)), Square(3), Square(4).around, Shape.made
print sorted('the quick brown fox'.split(), key=len), [x * y for x in range(3) for y in range(3) if x != y]
print json.dumps(json.loads('{"b": [1, 2.5, null, {"c": true}], "a": "x"}'), sort_keys=True)
print re.sub(r'\b(\w)', lambda m: m.group(1).upper(), 'the quick brown fox')
names = ArrayList(['b', 'c', 'a'])
Collections.sort(names)
print names, 2 ** 100
Point = namedtuple('Point', 'x y')
print Point(1, 2)._replace(x=5), OrderedDict([('k', 1)])
try:
    Integer.parseInt('none')
except IllegalArgumentException as e:
    print e.message
exec 'print [i for i in reversed(range(5))]'
with open('written', 'w') as out:
    out.write('\n'.join(map(str, primes(100))))
sys.exit(0)
