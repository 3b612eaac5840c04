// Identifiers of the resources that only the framework's tests use; #defines, because the resource compiler reads them
// too. They lie far from the program's own.
#pragma once

#define IDD_TEST_DIALOG 30001
#define IDC_TEST_BUTTON 30002
#define IDP_TEST_PICTURE 30003
#define IDP_TEST_DAMAGED 30004
#define IDS_TEST_FORMAT 50000
#define IDS_TEST_CAPTION 50001
