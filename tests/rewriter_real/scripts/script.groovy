import groovy.json.JsonOutput
import groovy.json.JsonSlurper
import groovy.transform.CompileStatic
import groovy.transform.Immutable

@Immutable
class Point {
    int x
    int y

    Point plus(Point other) { new Point(x + other.x, y + other.y) }
}

@CompileStatic
class Sieve {
    static List<Integer> primes(int end) {
        boolean[] composite = new boolean[end]
        List<Integer> primes = []
        for (int i = 2; i < end; i++) {
            if (composite[i]) {
                continue
            }
            primes << i
            for (long j = (long) i * i; j < end; j += i) {
                composite[(int) j] = true
            }
        }
        primes
    }
}

def depth(n) {
    if (n == 0) {
        throw new IllegalStateException('deep enough')
    }
    try {
        depth(n - 1)
    } finally {
        unwound++
    }
}

unwound = 0
try {
    depth(20)
} catch (IllegalStateException e) {
    println "$e.message, $unwound"
}

println Sieve.primes(2000).sum()
println([new Point(1, 2), new Point(3, 4)].inject { a, b -> a + b })
println((1..20).collect { it * it }.findAll { it % 3 == 1 }.groupBy { it % 5 })
def fib
fib = { n -> n < 2 ? n : fib(n - 1) + fib(n - 2) }.memoize()
println fib(60)
def text = JsonOutput.toJson([name: 'json', list: [1, 2.5, null, [a: true]]])
println new JsonSlurper().parseText(text).list[3].a
println 'the quick brown fox'.replaceAll(/\b(\w)/) { all, first -> first.toUpperCase() }
println new GroovyShell().evaluate('int[][] grid = new int[4][5]; grid.collect { it.length }.sum()')
switch ([1, 2, 3]) {
    case Map: println 'map'; break
    case List: println 'list'; break
}
try {
    nothing.here()
} catch (MissingPropertyException e) {
    println e.property
}
