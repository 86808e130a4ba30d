# Compiles for Microsoft's ABI, and links nothing: clang 19 with the options of Microsoft's compiler (clang-cl), libc++ in
# place of Microsoft's standard library, Wine's headers in place of the Windows SDK. Debian 12: clang-19 lld-19 llvm-19
# libc++-19-dev libwine-dev.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(VEK_COMPILE_ONLY ON)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# The name by which the compiler is called decides on its options. A compiler test runs in another folder.
if(NOT DEFINED ENV{VEK_CLANG_CL})
    find_program(VEK_CLANG clang-19 REQUIRED)
    file(CREATE_LINK ${VEK_CLANG} ${CMAKE_BINARY_DIR}/clang-cl SYMBOLIC)
    set(ENV{VEK_CLANG_CL} ${CMAKE_BINARY_DIR}/clang-cl)
endif()
set(CMAKE_C_COMPILER $ENV{VEK_CLANG_CL})
set(CMAKE_CXX_COMPILER $ENV{VEK_CLANG_CL})
set(CMAKE_RC_COMPILER llvm-rc-19)
set(CMAKE_AR /usr/bin/llvm-lib-19)
set(CMAKE_LINKER /usr/bin/lld-link-19)
set(CMAKE_MT /usr/bin/llvm-mt-19)

set(own ${CMAKE_CURRENT_LIST_DIR}/microsoft-abi/include)
set(clang /usr/lib/llvm-19/lib/clang/19/include)
set(wine "/imsvc /usr/include/wine/wine/msvcrt /imsvc /usr/include/wine/wine/windows")
set(common "--target=x86_64-pc-windows-msvc -fms-compatibility-version=19.44 /X -nobuiltininc /D_UCRT")
set(CMAKE_C_FLAGS_INIT "${common} /imsvc ${clang} ${wine}")
set(CMAKE_CXX_FLAGS_INIT "${common} /EHsc /D_LIBCPP_NO_VCRUNTIME /D_LIBCPP_ABI_BOUNDED_ITERATORS /DWINE_UNICODE_NATIVE \
/imsvc ${own} /imsvc /usr/lib/llvm-19/include/c++/v1 /imsvc ${clang} ${wine}")
set(CMAKE_RC_FLAGS_INIT "/I /usr/include/wine/wine/windows")
