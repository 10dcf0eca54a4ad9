# Counts the tests in the log that ctest leaves: "N passed, M failed".
#
# A GoogleTest program counts by its own tests. When it ends in a failure that none of its tests bears (a crash, a leak
# found at the end, a limit of time), that is one failed test more. Any other program counts as one test.

/^[0-9]+\/[0-9]+ Testing: / {
    passed_here = failed_here = 0
    complete = own_tests = 0
}
/\[ RUN      \] / { own_tests = 1 }
/\[       OK \] .*\([0-9]+ ms\)$/ { ++passed_here }
/\[  FAILED  \] .*\([0-9]+ ms\)$/ { ++failed_here }
/^\[==========\] [0-9]+ tests? from .* ran\./ { complete = 1 }

/^Test Passed\.$/ {
    passed += own_tests ? passed_here : 1
    failed += failed_here
}
/^Test (Failed|Not Run|Timeout)/ {
    passed += passed_here
    failed += failed_here
    if (failed_here == 0 || !complete) {
        ++failed
    }
}

END {
    if (passed + failed == 0) {
        exit 1
    }
    printf "%d passed, %d failed\n", passed, failed
}
