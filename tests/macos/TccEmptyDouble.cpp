// SPDX-License-Identifier: MIT
// A privacy framework without its functions.
int fadeloomNothing();
int fadeloomNothing()
{
    return 0;
}
