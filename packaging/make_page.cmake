# One document as a page: the links between the texts become links between the pages.
get_filename_component(folder "${PAGE}" DIRECTORY)
file(MAKE_DIRECTORY "${folder}")
file(READ "${SOURCE}" text)
string(REGEX MATCH "^# *([^\n]*)" title "${text}")
set(title "${CMAKE_MATCH_1}")
# The anchor of a heading would lack what stands as code in it.
string(REGEX REPLACE "(\n#+ [^\n`]*)`([^\n`]*)`" "\\1\\2" text "${text}")
file(WRITE "${PAGE}.md" "${text}")
# Smart typography would take the mark of inches for a quotation.
execute_process(COMMAND "${LOWDOWN}" -s -Thtml --out-no-smarty -m css=manual.css
  -m "title=${title} - Kestrum Suite" "${PAGE}.md"
  OUTPUT_VARIABLE page COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "href=\"([a-z]+)\\.md" "href=\"\\1.html" page "${page}")
string(REGEX REPLACE "(<h[1-6] id=\"[a-z0-9-]*)\\." "\\1" page "${page}")
# What is no page of the installation.
string(REGEX REPLACE "href=\"\\.\\./examples" "href=\"examples" page "${page}")
file(WRITE "${PAGE}" "${page}")
file(REMOVE "${PAGE}.md")
