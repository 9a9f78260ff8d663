# What the scripts of this folder share; they read it with `here` set to this folder.

root=$(cd "$here/../.." && pwd)
work=$root/build/windows
# The libraries take a quarter of an hour to build and change with Debian alone: several clones may share them.
cache=${CSERKO_WINDOWS_CACHE:-$work/libraries}
prefix=$cache/prefix
# The installed folder as it will be, and where what is ready for users goes.
stage=$work/stage
products=$root/out/windows

tools=x86_64-w64-mingw32

case $cache in *[[:space:]]*)
  echo "The libraries cannot be built in a folder with blanks in its path: $cache" >&2
  echo "CSERKO_WINDOWS_CACHE names another one." >&2
  exit 1
  ;;
esac

# configure SOURCES BUILD OPTION...: a build for Windows, with the libraries that are there. The tools of Qt that run
# during the build are those of this machine.
configure() {
  sources=$1
  folder=$2
  shift 2
  host_qt=$(dpkg -L qt6-base-dev | sed -n 's#/Qt6HostInfo/Qt6HostInfoConfig\.cmake$##p')
  cmake -S "$sources" -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DCSERKO_WINDOWS_PREFIX="$prefix" -DCMAKE_PREFIX_PATH="$prefix" \
    -DQT_HOST_PATH="${host_qt%/lib/*}" -DQT_HOST_PATH_CMAKE_DIR="$host_qt" "$@"
}
