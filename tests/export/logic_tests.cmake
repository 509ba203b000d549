target_sources(logic_tests PRIVATE
  export/CalendarDaysTest.cpp
  export/CalendarOracleTest.cpp
  export/CalendarPagesTest.cpp
  export/HtmlEscapeTest.cpp
  export/ListPagesTest.cpp
  export/PagesTest.cpp
  export/TemplateCommandsTest.cpp
)
