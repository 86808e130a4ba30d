# Counts the tests in the log of `ctest -V`: every test of a GoogleTest program by itself, every other entry as one.
# Entries that only prepare others (StartWine) do not count. Prints "PASSED FAILED".

match($0, /^[0-9]+: /) {
    entry = substr($0, 1, RLENGTH - 2)
    line = substr($0, RLENGTH + 1)
    if (line ~ /^\[       OK \] /)
        ok[entry]++
    else if (line ~ /^\[  FAILED  \] .* \([0-9]+ ms\)/)
        bad[entry]++
}

/^ *[0-9]+\/[0-9]+ Test +#[0-9]+: / {
    number = $0
    sub(/^[^#]*#/, "", number)
    name = number
    sub(/:.*/, "", number)
    sub(/^[0-9]+: /, "", name)
    sub(/ .*/, "", name)
    isPassed = ($0 ~ /   Passed  /)
    if (name == "StartWine") {
        failed += !isPassed
        next
    }
    passed += ok[number]
    failed += bad[number]
    if (ok[number] + bad[number] == 0 && isPassed)
        passed++
    if (!isPassed && bad[number] == 0)
        failed++ # it crashed, hung, or is no GoogleTest program
}

END { print passed + 0, failed + 0 }
