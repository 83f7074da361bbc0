# What is installed of the builds for Windows.
if(FIELDKIT_SHARED)
  fieldkit_install(shared framework companion fieldkit winmain testkit)
else()
  fieldkit_install(static framework companion fieldkit winmain testkit)
endif()

# Those of the compiler's DLLs that the library cannot do without.
foreach(_name IN LISTS FIELDKIT_RUNTIME)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${_name}
    OUTPUT_VARIABLE _path OUTPUT_STRIP_TRAILING_WHITESPACE)
  install(FILES ${_path} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()

# Only what lies directly in these folders is public; subfolders are internal.
foreach(_folder api framework geometry survey util controls dialogs resources testkit)
  file(GLOB _headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/${_folder} ${PROJECT_SOURCE_DIR}/${_folder}/*.h)
  fieldkit_install_headers(${_folder} ${_headers})
endforeach()
fieldkit_install_headers(companion Tesuvo.h)
# The standard texts, which scripts include by these names.
install(FILES ${PROJECT_SOURCE_DIR}/framework/afxres.rc
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/framework)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/l.eng
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/resources)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/framework/l.jpn
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/framework)

# The system's headers by the names that programs of other disks write, where case makes a difference.
foreach(_name CommCtrl CommDlg Commctrl Commdlg DbgHelp Dbghelp Dbt GdiPlus Gdiplus HtmlHelp Htmlhelp IPHlpApi
        Iphlpapi MMReg MMSystem Mmsystem ObjBase Objbase Ole2 OleAuto PSAPI PowrProf Powrprof Psapi RichEdit Richedit
        SetupAPI Setupapi ShLwApi ShellAPI ShellApi Shellapi ShlGuid ShlObj Shlobj Shlwapi StrSafe Strsafe TChar Tchar
        TlHelp32 Tlhelp32 UxTheme Uxtheme Vssym32 WS2tcpip WinBase WinCrypt WinInet WinIoCtl WinNT WinReg WinSDKVer
        WinSock WinSock2 WinSvc WinUser Wincrypt Windows Wininet Winioctl Winsock2 Winsvc Ws2tcpip WtsApi32 Wtsapi32)
  string(TOLOWER ${_name} _lower)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/names/${_name}.h CONTENT
    "#pragma once\n#pragma GCC system_header\n#include_next <${_lower}.h>\n" @ONLY)
endforeach()
install(DIRECTORY ${PROJECT_BINARY_DIR}/names/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/framework)

install(FILES ${PROJECT_SOURCE_DIR}/cmake/FieldkitResources.cmake
  ${PROJECT_SOURCE_DIR}/cmake/FieldkitSources.cmake DESTINATION ${_package})

if(FIELDKIT_SHARED)
  # gdb loads it with the DLL, from folders that its auto-load safe-path names.
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/auto-load.py CONTENT
    "import os\nimport gdb\n\n_folder = os.path.dirname(gdb.current_objfile().filename)\ngdb.execute(\"source \" + os.path.join(_folder, \"..\", \"share\", \"fieldkit\", \"fieldkit.py\"))\n" @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/auto-load.py DESTINATION ${CMAKE_INSTALL_BINDIR} RENAME FieldkitFx.dll-gdb.py)
endif()
