# Debian packages by purpose, for the scripts that source this file.
# shellcheck shell=bash disable=SC2034

build_packages=(g++ cmake ninja-build qt6-base-dev libncurses-dev libqt6sql6-sqlite libqt6sql6-psql sqlite3 fonts-dejavu-core)
test_packages=(libgtest-dev postgresql clang-14 libclang-rt-14-dev lld-14 clang-format-14 clang-tidy-14 python3 xvfb xauth
    at-spi2-core dbus gir1.2-atspi-2.0 python3-gi qt6-tools-dev libqt6opengl6-dev)
designer_packages=(qt6-tools-dev designer-qt6)
package_packages=(dpkg-dev file desktop-file-utils debootstrap)
fuzz_packages=(clang-14 libclang-rt-14-dev lld-14 llvm-14)
bench_packages=(libbenchmark-dev libicu-dev)
windows_packages=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools wine wine64)
installer_packages=(wixl msitools)
