# The version is in the project's declaration and its date in the change log. Both are compared
# here with the files that repeat them; the manuals get them when installing.

set(TEPHREX_CHANGELOG ${CMAKE_CURRENT_LIST_DIR}/changelog)
set(TEPHREX_METAINFO ${PROJECT_SOURCE_DIR}/data/desktop/org.example.tephrexedit.metainfo.xml)
set_property(DIRECTORY APPEND PROPERTY
  CMAKE_CONFIGURE_DEPENDS ${TEPHREX_CHANGELOG} ${TEPHREX_METAINFO})

file(STRINGS ${TEPHREX_CHANGELOG} signed REGEX "^ -- " LIMIT_COUNT 1)
string(REGEX REPLACE ".*>  " "" signed "${signed}")
execute_process(COMMAND date --utc "--date=${signed}" "+%s;%F"
  OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
list(POP_FRONT date TEPHREX_SECONDS TEPHREX_DATE)

# agree(FILE PATTERN EXPECTED): the first line that matches the pattern must contain this text.
function(agree file pattern expected)
  file(STRINGS ${file} found REGEX "${pattern}" LIMIT_COUNT 1)
  string(FIND "${found}" "${expected}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${file} says ${found} and not ${expected}")
  endif()
endfunction()
agree(${TEPHREX_CHANGELOG} "^tephrexedit " "tephrexedit (${PROJECT_VERSION}) ")
agree(${TEPHREX_METAINFO} "<release "
  "<release version=\"${PROJECT_VERSION}\" date=\"${TEPHREX_DATE}\"/>")
