// SPDX-License-Identifier: MIT
// A privacy framework that has lost its functions.
int fadeloomNothing();
int fadeloomNothing()
{
    return 0;
}
