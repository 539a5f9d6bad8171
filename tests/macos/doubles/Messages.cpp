// SPDX-License-Identifier: MIT
// Message dispatch: finds the method, and jumps there with the registers unchanged. A message to nil returns zero.
#define FADELOOM_SEND(NAME, OBJECT, SELECTOR, FIND, LAST, WHEN_NOTHING)                                      \
    __asm__(                                                                                                 \
        ".text\n.globl " NAME "\n.type " NAME ", @function\n" NAME ":\n" WHEN_NOTHING                        \
        "pushq %rbp\nmovq %rsp, %rbp\nsubq $208, %rsp\n"                                                     \
        "movq %rdi, 0(%rsp)\nmovq %rsi, 8(%rsp)\nmovq %rdx, 16(%rsp)\nmovq %rcx, 24(%rsp)\n"                 \
        "movq %r8, 32(%rsp)\nmovq %r9, 40(%rsp)\nmovq %rax, 48(%rsp)\n"                                      \
        "movups %xmm0, 64(%rsp)\nmovups %xmm1, 80(%rsp)\nmovups %xmm2, 96(%rsp)\nmovups %xmm3, 112(%rsp)\n"  \
        "movups %xmm4, 128(%rsp)\nmovups %xmm5, 144(%rsp)\nmovups %xmm6, 160(%rsp)\nmovups %xmm7, "          \
        "176(%rsp)\n"                                                                                        \
        "movq " OBJECT ", %rax\nmovq " SELECTOR ", %rsi\nmovq %rax, %rdi\n"                                  \
        "call " FIND "\nmovq %rax, %r11\n"                                                                   \
        "movups 64(%rsp), %xmm0\nmovups 80(%rsp), %xmm1\nmovups 96(%rsp), %xmm2\nmovups 112(%rsp), %xmm3\n"  \
        "movups 128(%rsp), %xmm4\nmovups 144(%rsp), %xmm5\nmovups 160(%rsp), %xmm6\nmovups 176(%rsp), "      \
        "%xmm7\n"                                                                                            \
        "movq 0(%rsp), %rdi\nmovq 8(%rsp), %rsi\nmovq 16(%rsp), %rdx\nmovq 24(%rsp), %rcx\n"                 \
        "movq 32(%rsp), %r8\nmovq 40(%rsp), %r9\nmovq 48(%rsp), %rax\nleave\n" LAST "jmp *%r11\n")

FADELOOM_SEND("objc_msgSend", "%rdi", "%rsi", "fadeloomMethod", "",
    "testq %rdi, %rdi\njne 1f\nxorl %eax, %eax\nxorl %edx, %edx\nxorps %xmm0, %xmm0\nxorps %xmm1, "
    "%xmm1\nret\n1:\n");
FADELOOM_SEND("objc_msgSend_stret", "%rsi", "%rdx", "fadeloomMethod", "",
    "testq %rsi, %rsi\njne 1f\nxorps %xmm0, %xmm0\nmovups %xmm0, 0(%rdi)\nmovups %xmm0, 16(%rdi)\nmovq %rdi, "
    "%rax\n"
    "ret\n1:\n");
FADELOOM_SEND("objc_msgSendSuper2", "%rdi", "%rsi", "fadeloomSuperMethod", "movq (%rdi), %rdi\n", "");
