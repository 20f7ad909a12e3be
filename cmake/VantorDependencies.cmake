# The libraries underneath, each as one imported target.

find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(Boost 1.74 REQUIRED COMPONENTS system thread)
find_package(OpenSSL REQUIRED)
find_package(LibXml2 REQUIRED)
find_package(GTest REQUIRED)
find_package(benchmark REQUIRED)
find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Network)
pkg_check_modules(LOG4CXX REQUIRED IMPORTED_TARGET liblog4cxx)
pkg_check_modules(CJSON REQUIRED IMPORTED_TARGET libcjson)
if(NOT WIN32)
    find_package(Qt5 5.15 REQUIRED COMPONENTS X11Extras)
    pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb)
    pkg_check_modules(XCB_DAMAGE REQUIRED IMPORTED_TARGET xcb-damage)
    pkg_check_modules(XCB_XTEST REQUIRED IMPORTED_TARGET xcb-xtest)
endif()
pkg_check_modules(AVCODEC REQUIRED IMPORTED_TARGET libavcodec libavutil)

# SQLCipher exports the symbols of libsqlite3. Linking its archive, with the symbols kept inside, makes sure that no
# other library's plain engine is called in its place, which would write files unencrypted without a word.
pkg_check_modules(SQLCIPHER REQUIRED sqlcipher)
find_library(SQLCIPHER_ARCHIVE NAMES libsqlcipher.a REQUIRED)
add_library(vantor_sqlcipher INTERFACE)
target_include_directories(vantor_sqlcipher SYSTEM INTERFACE ${SQLCIPHER_INCLUDE_DIRS})
target_compile_definitions(vantor_sqlcipher INTERFACE SQLITE_HAS_CODEC)
target_link_libraries(vantor_sqlcipher INTERFACE ${SQLCIPHER_ARCHIVE} OpenSSL::Crypto Threads::Threads ${CMAKE_DL_LIBS})
target_link_options(vantor_sqlcipher INTERFACE LINKER:--exclude-libs,libsqlcipher.a)
