# Prints of the log of `ctest -V` what the failed entries said, without the tests that passed.

FNR == NR {
    if (/^ *[0-9]+\/[0-9]+ Test +#[0-9]+: / && !/   Passed  /) {
        number = $0
        sub(/^[^#]*#/, "", number)
        sub(/:.*/, "", number)
        isFailed[number] = 1
        print
    }
    next
}

match($0, /^[0-9]+: /) && (substr($0, 1, RLENGTH - 2) in isFailed) {
    line = substr($0, RLENGTH + 1)
    if (line !~ /^\[( RUN      |       OK |----------)\]/)
        print line
}
