# Copies a header into the folder that programs include from, where every public header is <KelControls8/Name.h>:
#   cmake -D FROM=FILE -D TO=FOLDER/KelControls8/Name.h -D PUBLIC=Name.h,Other.h -P PublicHeader.cmake
# A header that includes one that is not public would not compile outside this tree, and is refused here.
cmake_minimum_required(VERSION 3.25)
file(READ "${FROM}" text)
string(REPLACE "," ";" PUBLIC "${PUBLIC}")
string(REGEX MATCHALL "#include \"[^\"]+\"" includes "${text}")
foreach(include IN LISTS includes)
    string(REGEX REPLACE "^#include \"(.*/)?([^/]+)\"$" "\\2" name "${include}")
    if(NOT name IN_LIST PUBLIC)
        message(FATAL_ERROR "${FROM} is public and includes ${name}, which is not")
    endif()
    string(REPLACE "${include}" "#include <KelControls8/${name}>" text "${text}")
endforeach()
file(WRITE "${TO}" "${text}")
