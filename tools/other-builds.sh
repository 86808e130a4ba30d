# The builds that only `./test.sh --all` makes; a part of test.sh. Each check counts as one test.

check()
{
    local title=$1 log=build/others/$2.log started=$SECONDS
    shift 2
    if run_step "$title" "$log" "$@"; then
        passed=$((passed + 1))
        echo "$title: passed in $((SECONDS - started)) s"
    else
        failed=$((failed + 1))
        echo "$title: FAILED"
    fi
}

# A host that takes the library in, with the given compiler and options. Usage: try_host NAME OPTION...
try_host()
{
    local name=$1
    shift
    cmake -DWORK_FOLDER="$PWD/build/others/$name" "$@" -P tests/install/subproject.cmake
}

try_host_under_wine()
{
    local -x WINEPREFIX=$PWD/build/windows-release/wineprefix WINEDEBUG=-all WINEDLLOVERRIDES=winedbg.exe=d
    sh cmake/start-wine.sh && try_host "$@"
}

compile_for_microsoft()
{
    cmake --preset microsoft-abi && cmake --build --preset microsoft-abi
}

# Another build, in another folder and without the compiler cache, gives the same DLLs.
build_dll_again()
{
    local folder=$PWD/build/others/windows-again dll
    rm -rf "$folder"
    cmake --preset windows-release -B "$folder" -DVEK_BUILD_TESTS=OFF -DVEK_BUILD_EXAMPLES=OFF &&
        CCACHE_DISABLE=1 cmake --build "$folder" --target FrameworkUtilities &&
        cmp "build/windows-release/src/libFrameworkUtilities.dll.a" "$folder/src/libFrameworkUtilities.dll.a" &&
        for dll in "$folder"/bin/*.dll; do
            cmp "build/windows-release/bin/${dll##*/}" "$dll" || return
        done
}

build_and_start_one_file()
{
    build_one_file && take_one_file_screenshots build/one-file/pictures
}

. tools/one-file.sh
mkdir -p build/others
launcher=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache
check "Static library in a host, GCC for C++23" static-linux \
    try_host static-linux -DCXX=g++ -DSTATIC=ON "-DHOST_OPTIONS=-DCMAKE_CXX_STANDARD=23;$launcher"
check "Static library in a host, Windows, one file" static-windows \
    try_host_under_wine static-windows "-DTOOLCHAIN=$PWD/cmake/MinGW.cmake" -DSTATIC=ON "-DHOST_OPTIONS=$launcher"
check "Application, Windows, one file in an empty folder" one-file build_and_start_one_file
check "Library in a host, clang 19 with libc++" libcxx \
    try_host libcxx -DCXX=clang++-19 "-DHOST_OPTIONS=-DCMAKE_CXX_FLAGS=-stdlib=libc++;$launcher"
check "Microsoft's ABI, compiled" microsoft-abi compile_for_microsoft
check "The same DLLs from another build" windows-again build_dll_again
test_target "Fuzzers, clang 14" fuzz
