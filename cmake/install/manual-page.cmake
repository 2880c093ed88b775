# Makes a manual page of a command's manual; run by CMake's -P:
#
#   cmake -D MANUAL=vantrel.md -D PAGE=vantrel.1 -D VERSION=X.Y.Z -D LOWDOWN=lowdown -P manual-page.cmake
#
# Manual pages have their sections' names in capitals, no title above the first one, a dash after the name, which
# apropos looks for, no links to files that lie beside the manual, and a list of terms where the manual has a table.
cmake_path(GET PAGE STEM name)
file(READ ${MANUAL} text)
# CMake's lists would end at these.
string(REPLACE ";" "\\;" text "${text}")
string(REGEX REPLACE "^# [^\n]*\n" "" text "${text}")
string(REGEX REPLACE "\\[([^]]+)\\]\\([^)]*\\)" "\\1" text "${text}")
string(REPLACE "`${name}`: " "${name} - " text "${text}")
string(REGEX REPLACE "\n[|][^\n]*[|]\n[|][-|]+[|]\n" "\n" text "${text}")
string(REGEX REPLACE "\n[|] ([^|]*) [|] ([^\n]*) [|]" "\n\\1\n: \\2\n" text "${text}")
string(REGEX MATCHALL "\n## [^\n]*" headings "\n${text}")
foreach(heading IN LISTS headings)
    string(TOUPPER "${heading}" capitals)
    string(REPLACE "${heading}\n" "${capitals}\n" text "\n${text}")
endforeach()
string(REPLACE "\n## " "\n# " text "${text}")
string(REPLACE "\n### " "\n## " text "${text}")
string(REPLACE "\\;" ";" text "${text}")
file(WRITE ${PAGE}.md "${text}")
string(TOUPPER ${name} title)
execute_process(
    COMMAND ${LOWDOWN} -s -Tman --parse-no-intraemph --out-no-smarty
        -M title=${title} -M section=1 -M "source=Vantrel ${VERSION}" ${PAGE}.md
    OUTPUT_FILE ${PAGE}
    COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE ${PAGE}.md)
