// Words of Korean, English, Japanese and Chinese that mean several kinds, the likeliest kind first. A cue beside a
// generic noun names the kind itself, unless the noun's row holds a refinable kind of the cue's group, which then wins:
// so a row of generics lists a refinable kind only where it beats every cue of that group. Add an ambiguous word to the
// row that has its kinds, and take it out of the lists of single kinds.
//
// A Korean noun of two syllables is not found at the end of a longer word, so the commonest words that end with one
// stand here as they are written, without a blank ("매출현황", "연간계획").
//
// A generic word may also stand behind the noun that names a document ("worksheet, grade 5", "検査表 配布用"): what
// says when, for whom, how many or in which state stands among the generics of memos for that reason.

#include <VellarkDomain/Documents/Kinds/Words/KindWords.hpp>

#include <array>

namespace vellark::KindWords {

namespace {

using enum DocumentKind;

template <DocumentKind... kinds>
constexpr std::array<DocumentKind, sizeof...(kinds)> anyOf{kinds...};

constexpr auto rows = std::to_array<Shared>({
    {.kinds = anyOf<report, research>,
     .names = "분석, 평가, 비교, 비교표, 인사이트, 검토 보고서, 分析, 評価, 评估, 評估, 比較, 对比, 對比, インサイト, "
              "analysis, analyses, assessment, evaluation, insight, deep dive, benchmark, 白皮书, 白皮書, white paper, "
              "whitepaper, 백서, 白書, 경과 보고, 情况说明, 项目总结, 季度总结, 年度总结, 月度总结, 阶段总结, "
              "工作總結, 年度總結, 결과서, 점검 결과서, load test result, test result, implementation summary, "
              "implementation summaries, investigation finding, work summary, project summary, change summary, "
              "completion summary, test summary, 개선 결과, 구현 결과, 작업 결과, 실행 결과, 처리 결과, 검증 결과, "
              "측정 결과, 구현 요약, 작업 요약, 변경 요약, 진행 요약, 구현 정리, 실험 결과, 実装まとめ, 実装結果, "
              "作業報告, 対応結果, 検証結果, 测试结果, 測試結果, 实现总结, 实施总结, 验证结果, 完成总结, 修复总结, "
              "重构总结, 优化总结, trend, trends, 추이, 動向, 趋势, 趨勢, 推移, 사용성 테스트 결과, 进展, 项目进展, "
              "進捗, 進展, 감사 결과, 복명서, weekly status, project status, status update, 판매현황, 업무현황, "
              "운영현황, 진행현황, 추진현황, 처리현황, 공정현황, 채용현황, 이용현황, 접수현황, 민원현황, 교육현황, "
              "참여현황, 진척현황, 개발현황, 준비현황, 생산현황, 납품현황, 계약현황, 수주현황, 근태현황, 중간보고, "
              "최종보고, 현황보고, 활동보고, 상황보고, 진행보고, 완료보고, 분기보고, 연간보고, 실적보고, 성과보고, "
              "점검보고, 감사보고, 행사보고, 교육보고, 방문보고, 진척보고, 데이터분석, 매출분석, 실적분석, 성과분석, "
              "고객분석, 사용자분석, 로그분석, 트래픽분석, 현황분석, 성능분석, 위험분석, 효과분석, 통계분석, "
              "리스크분석, 수익성분석, migration summary, refactoring summary, fix summary, session summary, "
              "update summary, audit summary, analysis summary, performance summary, results summary, "
              "closeout summary, 活动总结, 培训总结, 学期总结, 半年总结, 实习总结, 주간리포트, 월간리포트, 분석리포트, "
              "성과리포트, 일일리포트, 실적리포트, 리서치리포트, 情況說明, 專案總結, 季度總結, 月度總結, 階段總結, "
              "驗證結果, 重構總結, 優化總結, 專案進展, 專案進度, 活動總結, 培訓總結, 學期總結, 實習總結, 季报, 年报, "
              "季報, 年報, 진행 상황, business review, 주간 업무 보고, 출장 보고, 일일 보고, 월간 보고, 工作总结, "
              "年终总结, 年終總結, 日报, 月报, 月報表, 掃描結果, 扫描结果, executive summary, dashboard, 테스트 결과, "
              "sprint summary",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<report, codeReview, essay>,
     .names = "리뷰, 검토, 검토서, review, レビュー, 评审, 評審, 评论, 評論",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<prd, plan, design>,
     .names = "기획, 브리프, brief, 企画, 策划, 策劃, ブリーフ, コンセプト, 企划书, 企劃書, 策划案, 策划书, "
              "企画案, 企划案, 企劃案, 요구사항 정의, product vision, feature definition, プロダクト 要求書, "
              "企画 概要書, mvp scope, scope document, 产品规划, 产品方案, 产品需求書, 產品規劃, 产品需求, "
              "产品方案书, 產品方案, 產品企劃, 策劃案, 策劃書, 功能規劃",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<story, script, userStories>,
     .names = "스토리, 시나리오, story, stories, ストーリー, シナリオ, 시놉시스, 줄거리, 세계관, 캐릭터 설정, "
              "synopsis, worldbuilding, character profile, あらすじ, プロット, 世界観, 剧情, 世界观, 人物小传, "
              "콩트, 팬픽, 우화, 동시, plot outline, character sheet, haiku, 小说大纲, 人物设定, 寓言, "
              "剧情大纲, 同人文, 登場人物表, 俳句, 二次創作, 昔話, 웹소설, 장편 소설, 판타지 소설, 现代诗, "
              "現代詩, 自作诗, 시 모음, 자작시, 창작동화, 전래동화, 그림동화, 창작소설, 자작소설, 추리소설, "
              "역사소설, 诗, 短篇, 劇情, 世界觀, 人物小傳, 小說大綱, 人物設定, 劇情大綱, 故事大綱, 极短篇, "
              "極短篇, 短篇小說, ショート ショート, lyrics, fairy tale, fiction, 絵本, 歌詞, 童話, 단편 소설, "
              "童話故事, 睡前故事",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<exercises, quiz, bugReport>,
     .names = "문제, 문항, 問題, 题目, 題目, 試題, 试题, 设问, 設問, 기출 문제, practice problem, practice question, "
              "question bank, review question, 演習 問題, 過去問, 確認 問題, 練習題, 练习卷, 練習卷, 真题, 真題, "
              "课后题, 思考题, 题库, 題庫, 章末問題, 练习, 练习册, 習題, 練習冊, 練習, 課題, drill, 문제지, 예제, "
              "練習 プリント, 習題集, 워크시트, 예상 문제, 문제은행, practice sheet, 应用题, 應用題, 演習, "
              "計算 プリント, 例題, 演習 課題, 宿題 プリント, 口算题卡, 口算题, 학습지, 算数 プリント, 漢字 プリント, "
              "国語 プリント, 英語 プリント, わり算 プリント, かけ算 プリント, 復習 プリント, 学習 プリント, 수학숙제, "
              "영어숙제, 국어숙제, 과학숙제, 방학숙제, 수학과제, 영어과제, 주차과제, 기말과제, 수행과제, 练习题, "
              "作业单, 練習單, 练习单, 作業單, 課後題, 思考題, 課後練習, 课后练习, 回家作業, 家庭作业, 家庭作業, "
              "寒假作业, 暑假作业, 寒假作業, 暑假作業, 數學作業, 英文作業, 國文作業, 數學習題, ドリル, "
              "練習問題プリント, 問題プリント, problem set, 연습지",
     .generics = "",
     .cues = "practice, mock, final, placement, entrance, driving, spelling, semester, certification, "
             "licence, license, pub, safety, module, knowledge, security, team, capitals, product, culture, "
             "music"},
    {.kinds = anyOf<learning, lectureNotes>,
     .names = "강의 자료, 강좌, 온라인 강의, 교육 계획서, learning path, training plan, 수업 자료, 강의 슬라이드, "
              "유인물, lecture slide, lecture material, class material, handout, 講義資料, 授業資料, 課件, 课件, "
              "配布資料, 講義, 교재, 강의안, course material, training material, 研修 資料, 培训材料, 培训资料, 学案, "
              "學案, 说课稿, 教学方案, 教學方案, 课程, 課程, 教學計畫, 授業案, 講座, textbook, workbook, 활동지, "
              "교육 프로그램, 실러버스, teaching note, workshop outline, training manual, 課程大綱, 学习手册, "
              "讲师手册, 单元设计, 備課筆記, 备课笔记, 培训方案, 教学进度表, 教育 プログラム, 単元 計画, "
              "研修 プログラム, 授業 プリント, 课程安排, 課程安排, workshop material, workshop materials, "
              "class handout, 講座テキスト, 研修テキスト, 学習テキスト, 培训计划, 课程计划, 課程計畫, 培訓計畫, "
              "培訓資料, 培訓材料, 說課稿, 學習手冊, 講師手冊, 單元設計, 培訓方案, 教學進度表, 課程設計, 课程设计, "
              "教學大綱, 教學設計, 학습 자료, 교육 자료, 교육 과정, unit plan, 지도안, 교안, 과정안, course, lesson, "
              "수업 계획, 강의 계획서, 수업 계획서, 指導案, シラバス, 教学计划, 教学设计, 教学大纲",
     .generics = "자료, materials, material, resources, resource, 資料, 资料, 素材",
     .cues = "과외, 부트캠프, 워크숍 자료, bootcamp, tutoring, 研修, 培训, 培訓"},
    {.kinds = anyOf<design, designDoc>,
     .names = "design, 设计, 도면, drawing, 図面, 图纸, 圖紙, 原型, 原型设计, 设计图, 設計圖, 效果图, 版式, 介面設計, "
              "交互设计, 交互設計, 视觉设计, 視覺設計, ラフ案, 画面 イメージ, prototype, layout, sitemap, user flow, "
              "journey map, 레이아웃, 프로토타입, 사용자 여정, 유저 플로우, プロトタイプ, 原型图, 原型圖, 스케치, "
              "무드보드, 화면 흐름도, 여정 지도, sketch, sketches, logo concept, 交互稿, 草图, 草圖, 故事板, 情绪板, "
              "ロゴ案, ムード ボード, 完成 予想図, カスタマー ジャーニー マップ, user persona, buyer persona, "
              "customer persona, ラフスケッチ, 视觉稿, 視覺稿, 效果圖, 情緒板, 介面稿, 手繪稿, 手绘稿, ペルソナ設定, "
              "퍼소나, 线框图, 用户画像, 示意圖, 示意图, 人物誌, 使用者畫像, ペルソナ シート",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<notice, guide>,
     .names = "안내, 이용 안내, 案内, ご案内, 说明, 説明, 說明, 안내 사항, 案内文, 须知, 須知, 温馨提示, 公示, "
              "通告, お願い, 通知書, 募集案内, 안내문, advisory, reminder, 통지문, 협조문, 전달 사항, "
              "학습 안내, 告家长书, 公函, 告知文, 案内状, 連絡 事項, 講座 案内, 回覧板, 回覧, "
              "important information, 청첩장, 喜报, 告示, 휴무공지, 긴급공지, 점검공지, 행사공지, 일정공지, "
              "변경공지, 서비스공지, 전체공지, 입찰공고, 공모공고, 선정공고, 합격공고, 행사안내, 휴무안내, "
              "점검안내, 교육안내, 일정안내, 신청안내, 납부안내, 변경안내, 수강안내, 입학안내, 등록안내, "
              "주차안내, 掲示物, 邀请函, 邀請函, 溫馨提示, 告家長書, 喜報, 情況通報, 情况通报, "
              "수강생 모집 공고, 참가자 모집 공고, 참여자 모집 공고, 입주자 모집 공고, 장학생 모집 공고, "
              "서포터즈 모집 공고, 지원 모집 공고, 지원사업 모집 공고, 교육생 모집 공고, 회원 모집 공고, "
              "참여 기업 모집 공고, 입주 기업 모집 공고, 사업 모집 공고, save the date",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<plan, checklist, userStories>,
     .names = "백로그, 다음 단계, 액션 아이템, 시간표, 계획표, 타임라인, 캘린더, backlog, task, next step, "
              "action item, バックログ, タスク, 任务, 任務, timeline, gantt chart, wbs, work breakdown structure, "
              "时间表, 時間表, 进度表, 進度表, 日程表, 排期表, 排期, 排程表, 排程, 工作安排, 活动安排, ガントチャート, "
              "進行表, 甘特图, 甘特圖, 日程, calendar, 스케줄, 予定表, 工程表, 근무표, 스케줄표, 액션 플랜, "
              "마스터 플랜, 세부 추진 계획, shift schedule, 推进表, 值班表, 时间安排, 日历, 排班表, 应急预案, "
              "年間予定, シフト表, アクション プラン, 時間割, 当番表, マイルストーン, 편성표, task breakdown, "
              "작업 분해, 작업 목록, 작업 분류, タスク 分解, 任务分解, 任务拆解, run sheet, call sheet, 진행표, "
              "진도표, 분장표, 업무 분장표, 당번표, 值日表, 行事予定, 予定, 安排表, 진행 계획표, 推广方案, 营销方案, "
              "活动方案, 推廣方案, 行銷方案, 연간계획, 주간계획, 월간계획, 분기계획, 일일계획, 세부계획, 교육계획, "
              "안전계획, 행사계획, 활동계획, 개발계획, 출시계획, 배포계획, 홍보계획, 마케팅계획, 판매계획, 영업계획, "
              "생산계획, 구매계획, 채용계획, 인력계획, 이전계획, 전환계획, 구축계획, 개선계획, 조치계획, 대응계획, "
              "점검계획, 관리계획, 감사계획, 연구계획, 훈련계획, 공부계획, 운동계획, 방학계획, 휴가계획, 프로젝트계획, "
              "출장계획, 견학계획, 봉사계획, 캠프계획, 이벤트계획, 콘텐츠계획, 촬영계획, 제작계획, 이사계획, 결혼계획, "
              "중장기계획, 장기계획, 종합계획, 기본계획, 시행계획, 실천계획, 수행계획, 복구계획, 마이그레이션계획, "
              "주간일정, 월간일정, 연간일정, 행사일정, 회의일정, 개발일정, 출시일정, 배포일정, 촬영일정, 시험일정, "
              "공사일정, 교육일정, 수업일정, 학사일정, 방학일정, 프로젝트일정, 업무일정, 공연일정, 마케팅전략, "
              "영업전략, 판매전략, 홍보전략, 브랜드전략, 콘텐츠전략, 가격전략, 제품전략, 진출전략, 데이터전략, "
              "채용전략, 发展战略, 营销战略, 개발로드맵, 제품로드맵, 기술로드맵, 서비스로드맵, 사업로드맵, 연간캘린더, "
              "콘텐츠캘린더, 마케팅캘린더, 주간스케줄, 월간스케줄, 촬영스케줄, 時程表, 時程, 活動安排, 時間安排, 日曆, "
              "行事曆, 應急預案, 任務分解, 任務拆解, 课表, 課表, 课程表, 課程表, 作息表, 作息時間表, 段取り, 试产计划, "
              "日程案, やること, 待办, 待辦",
     .generics = "",
     .cues = "launch, weekend, holiday, wedding, party, moving, household, 주말, 이번 주, 결혼식, 여행 전"},
    {.kinds = anyOf<finance, businessPlan>,
     .names = "실적, 매출 전망, 예산 현황, 예산 집행 현황, 예산 계획, 지출 현황, 내역서, 연말 정산, 비용 분석, "
              "재무 보고서, 결산 보고서, 회계 보고서, financial report, financial analysis, earnings report, "
              "cost analysis, expense analysis, revenue report, 実績, 業績, 业绩, 決算報告, 财务报告, 財務報告, "
              "재무제표, 손익 계산서, 결산, 결산서, 지출 내역, 정산 내역, financial statement, income statement, "
              "cash flow, profit and loss, p l, forecast, cost breakdown, 決算書, 収支 報告書, 損益 計算書, "
              "貸借対照表, 財務報表, 资产负债表, 資產負債表, 利润表, 損益表, 现金流量表, 收支表, 费用明细, 決算, 决算, "
              "结算单, 結算單, 工资表, 薪資表, 对账单, 對帳單, 精算書, 明細書, 資金繰り表, financial plan, "
              "financial model, 재무 계획, 경비 내역, 회비 내역, 거래 내역, 매출 현황, 원가 계산서, 자금 계획, 발주서, "
              "tax return, bank statement, billing summary, pay stub, financial projection, credit note, 工资条, "
              "收支明细, 估价单, 成本核算表, 付款申请单, 采购订单, 流水账, 记账本, 予算書, 収支表, 発注書, 給与明細, "
              "納品書, 売上 予測, 振込 依頼書, 会計 報告, 収支 計画, 経費 精算, 決算 報告, 账本, 家庭账本, 帳本, "
              "p l statement, 收支明細, 収支 報告, profit and loss statement, 발행 내역, 결제 내역, 입출금 내역, "
              "사용 내역, 발행 목록, 报销明细, 收據, 费用报销单, 報銷單, 월급 명세서, quotation, 发票明细, 결산 내역, "
              "예산 내역, 회비 정산, 비용정산, 출장정산, 경비정산, 여행정산, 급여정산, 연간예산, 사업예산, 행사예산, "
              "부서예산, 프로젝트예산, 여행예산, 급여대장, 매출전표, 월말결산, 연간결산, expense claim, claim form, "
              "帳單, 請款單, 请款单, 财务报表, 利潤表, 現金流量表, 費用明細, 薪資單, 工資單, 估價單, 付款申請單, "
              "採購單, 流水帳, 記帳本, 報銷明細, 費用報銷單, 發票明細, 经费预算, 經費預算, 收据, 發票, 申告書, 明細, "
              "精算, 注文書, 決算報告書, 가계부, 지출 결의서, 급여 명세서, 거래 명세서, payroll, ledger, "
              "balance sheet, finance, 家計簿, 정산서, expense report, 재무, 세금 계산서, 예산 보고, 회계 보고, "
              "재무 보고",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<businessPlan, presentation, sales, email>,
     .names = "피치 덱, 피치, ir 자료, ir 덱, 투자 유치 자료, pitch deck, pitch, investor deck, investor presentation, "
              "ir deck, ピッチ資料, ピッチデック, 路演, 路演材料, 商业画布, 商業畫布, リーン キャンバス, "
              "business model canvas, lean canvas, investment memo, 투자 제안서, 수익 모델, 融资计划书, 收益模型, "
              "business model, 비즈니스 모델, ビジネス モデル, 商业模式, 商業模式, 商业模式画布, 商業模式畫布, "
              "사업 모델, 수익 구조",
     .generics = "",
     .cues = "supplier, vendor, partner, candidate, landlord, colleague, application, confirmation, reminder, "
             "invitation, delay, delivery, late, demo, meeting request, introduction, cancellation, refund, complaint, "
             "feedback request, 거래처, 협력사, 파트너, 후보자, 납기, 지연, 회신, 안내, 초대, 취소, 환불, 독촉, 확인, "
             "일정 변경, 取引先, お客様, お断り, 客戶, 供应商, 供應商, 回覆, 感谢, 感謝, 道歉, lightning, tech, "
             "meetup, inquiry, resignation, rejection, reference, request, payment, shipping, appointment, 의뢰, 추천, "
             "cover, 교수님, 선생님, 퇴사, 입사, 축하, 합격, 거절, 수락, 양해, 안부, 병가, 상사, 동료, 팀원, 학부모, "
             "professor, teacher, boss, parents, team, offer, farewell, birthday, congratulations, thanks, sick leave, "
             "overdue, 面接, 退職, 挨拶, 日程 調整, 納期, 返品, 教授, 先生, 上司, 保護者, 得意先, 面试, 面試, 离职, "
             "離職, 请假, 請假, 老师, 老師, 导师, 導師, 催款, 延期, invoice, quote, order, result, results, pricing, "
             "contract, interview result"},
    {.kinds = anyOf<studyNotes, quiz, learning>,
     .names = "공부, 복습, 예습, 시험 요약, 중간고사 요약, 기말고사 요약, 시험 노트, 勉強, 復習, 复习, 複習, "
              "플래시카드, 암기 카드, flashcard, フラッシュカード, 闪卡, 단어장, 시험 대비, vocabulary list, "
              "exam review, formula sheet, 単語帳, 暗記カード, 考点, 单词表, 單字表, 词汇表, 复习资料, 複習資料, "
              "重點整理, 背诵, 知识总结, 自习笔记, 自習 ノート, まとめ ノート, 要点 まとめ, 暗記 ノート, til, "
              "learning log, learning note, 개념 정리, 핵심 정리, 요점 정리, 요약 노트, 배운 내용, 复习提纲, 複習提綱, "
              "중간고사 정리, 기말고사 정리, 시험 정리, 중간고사 요약 정리, 기말고사 요약 정리, 시험 요약 정리, "
              "중간고사 대비, 기말고사 대비, 시험 범위 정리, 암기 노트, 마인드맵, 공식 정리, 용어 정리, 핵심 요약, "
              "mind map, concept map, cheat note, 考试重点, 思维导图, 心智圖, 公式汇总, 自学笔记, 考研笔记, 試験 対策, "
              "公式集, 用語集, マインド マップ, テスト 対策, 考前重点, 暗記まとめ, 暗記, 备考笔记, 备考资料, 備考筆記, "
              "요약정리본, 対策 プリント, 閃卡, 考點, 單詞表, 詞彙表, 知識總結, 自習筆記, 考試重點, 思維導圖, "
              "公式匯總, 自學筆記, 考研筆記, 考前重點, 重点笔记, 重點筆記, 总复习, 總複習, 單字本, 单词本, 生词本, "
              "複習重點, 复习重点, 單字整理, 单词整理, 考前整理, 学习笔记, 學習筆記, 知识点, exam cheat sheet, "
              "기말고사 요약본, 중간고사 요약본, 시험 요약본, 필기 요약, 필기 정리, 필기 요약 정리, 중간고사 요약정리, "
              "기말고사 요약정리, 시험 요약정리",
     .generics = "",
     .cues = "시험, 중간고사, 기말고사, 중간, 기말, 단원, 수학, 영어, 국어, 과학, 물리, 화학, 생물, 지구과학, 한국사, "
             "세계사, 역사, 사회, 경제학, 심리학, 통계학, 미적분, 선형대수, 문법, 영문법, 단어, 어휘, 한자, 토익, "
             "수능, 내신, 자격증, 챕터, chapter, unit, math, algebra, calculus, geometry, physics, chemistry, biology, "
             "history, geography, economics, psychology, grammar, vocabulary, anatomy, statistics, lesson, spanish, "
             "english, french, science, 試験, 期末, 期中, 中間, 数学, 數學, 英語, 英语, 物理, 化学, 化學, 生物, 歴史, "
             "世界史, 日本史, 历史, 歷史, 考试, 考試, 単元, 单元, 文法, 语法, 語法, 単語, 单词, 암기, 漢字, 計算, "
             "国語, 算数, 理科, 听写, 语文, 실기, 필기, 정보처리기사, 산업기사, 기능사, 공인중개사, 컴활, 토플, 오픽, "
             "검정고시, 기사 시험, 기본정보, 基本情報, 応用情報, 宅建, 簿記, toeic, toefl, ielts, 英検, 四级, 六级, "
             "考研, 雅思, 托福, 教资, 公务员考试, 四級, 六級, 多益, gcse, mcat, lsat"},
    {.kinds = anyOf<studyNotes, guide>,
     .names = "",
     .generics = "",
     .cues = "midterm, exam, 알고리즘, 자료구조, 자료 구조, 운영체제, 운영 체제, 네트워크, 파이썬, 자바, 리액트, "
             "도커, 쿠버네티스, 스프링, 머신러닝, 딥러닝, 컴퓨터 구조, 디자인 패턴, algorithm, data structure, "
             "operating system, networking, python, java, javascript, typescript, rust, golang, kotlin, swift, "
             "react, docker, kubernetes, git, linux, sql, aws, machine learning, deep learning, アルゴリズム, "
             "データ構造, ネットワーク, 算法, 数据结构, 数據結構, 操作系统, 机器学习, 深度学习, 機械学習"},
    {.kinds = anyOf<memo, journal, resume>,
     .names = "brainstorm, brainstorming, brain dump, 생각 정리, 便条, 便條, 随手记, 灵感, 头脑风暴, 走り書き, "
              "覚え書き, 备忘, 備忘錄, アイデア, 伝言メモ, idea, 아이디어, 아이디어 노트, 便签, 便簽, 備忘録, "
              "낙서, 끄적임, scratchpad, jottings, sticky note, 想法, 頭腦風暴, 随记, ネタ帳, ひらめき, "
              "随手笔记, 隨手筆記, 隨筆記, handoff note, handover note, session note, 세션 노트, 작업 메모, "
              "作業メモ, 工作笔记, scratch note, rough note, loose note, 잡생각, 随想, 雑記, 电话记录, "
              "電話記録, 電話記錄, 通話記録, 草记, 隨手記, 靈感, 備忘, 隨記, 工作筆記, 隨想, 靈感筆記, "
              "灵感笔记, 點子筆記, 点子笔记",
     .generics = "정리, 정리본, 요약, 요약본, 요약문, 요약 정리, 초고, 초벌, 의견, 노트, 기록, 기록지, 기록물, 결과, "
                 "내용, summary, summaries, notes, note, recap, takeaways, takeaway, records, record, findings, "
                 "variants, january, february, march, april, may, june, july, august, september, october, november, "
                 "december, results, result, list, まとめ, ノート, 記録, 要約, 結果, 内容, 要点, 草稿, 素案, 月分, "
                 "月号, 初稿, 定稿, 修订稿, 第期, 第讲, 意见, 一月, 二月, 三月, 四月, 五月, 六月, 七月, 八月, 九月, "
                 "十月, 总结, 總結, 笔记, 筆記, 记录, 紀錄, 摘要, 小结, 结果, 纪要, 內容, 整理, xlsx, docx, pptx, pdf, "
                 "md, csv, txt, hwp, sec, secs, min, mins, minutes, hours, days, weeks, pages, issue, grade, ltd, inc, "
                 "llc, one, two, three, four, five, edition, series, session, episode, ep, season, spring, summer, "
                 "fall, autumn, winter, monday, tuesday, wednesday, thursday, friday, saturday, sunday, approved, "
                 "confidential, internal, latest, current, signed, 제, 선, 건, 명, 쪽, 장, 가지, 상반기, 하반기, 학기, "
                 "봄, 여름, 가을, 겨울, 봄호, 여름호, 가을호, 겨울호, 확정, 확정본, 확정안, 배포용, 제출용, 발표용, "
                 "내부용, 사내용, 대외용, 검토용, 정제본, 파트, 本, 問, 選, 件, 名分, 枚, 春, 夏, 秋, 冬, 前期, 後期, "
                 "上期, 下期, 上半期, 下半期, 抜粋, 確定版, 完成版, 修正版, 修正案, 暫定版, 社内用, 配布用, 提出用, "
                 "条, 條, 篇, 份, 则, 道, 题, 題, 页, 頁, 例, 合集, 精选, 精選, 大全, 汇总, 彙總, 修订版, 修訂版, "
                 "终稿, 终版, 最终版, 正式版, 完整版, 简版, 草案, 模板, 範本, 范本, 样本, 示例, 上学期, 下学期, "
                 "上學期, 下學期, 上半年, 下半年, 学年, 學年, 组, 組, 表, 集, 稿, 檔, 檔案, 版本, 上篇, 下篇, 全文, "
                 "詳細, 別紙, 控え, chapter, section, appendix, dump, export, backup, 화, 막, 절, 과, 세트, 박, 인분, "
                 "분, 초, 시간, 話, 章, 節, 回分, 人前, 分, 章节, januar, februar, märz, mai, juni, juli, oktober, "
                 "dezember, janvier, février, mars, avril, juin, juillet, août, septembre, octobre, novembre, "
                 "décembre, enero, febrero, marzo, abril, mayo, junio, julio, agosto, septiembre, octubre, noviembre, "
                 "diciembre, kapitel, chapitre, capítulo, tema, kw, semaine, semana, folge, ausgabe, teil, épisode, "
                 "episodio, 文面, 図, 文, 用紙, 文言, оны, сарын, анги, хавар, зун, намар, өвөл, улирлын, жил, 年月日, "
                 "月日, 年月分, 月末, 令和年, 令和年月, 令和年月日, 年度上期, 年度下期, 年度上半期, 年度下半期, "
                 "四半期, 第四半期, 第週, 第周, 第章節, 第节, 第節, 第课, 第課, 第季度, 季度, 第一季度, 第二季度, "
                 "第三季度, 第四季度, 第集, 第卷, 第部, 第版, 第次, 第天, 第弾, 第号, 第號, 第巻, 第部分, 第单元, "
                 "第單元, 第一章, 第二章, 第三章, 第四章, 第五章, 第一节, 第二节, 第三节, 第一课, 第二课, 第三课, "
                 "第一单元, 第二单元, 第三单元, 第四单元, 第五单元, 第一期, 第二期, 第三期, 第一回, 第二回, 第三回, "
                 "第一部, 第二部, 修改版, 更新版, 新版, 初版, 改訂, 更新, 月號, 月号分, 三月号, 十一月, 十二月, 월일, "
                 "년월일, 월호, 월분, 년도, 차시, 학년, 학년도, 반, 제장, 제절, 제회, 제차, 제호, 제권, 제과, 제부, "
                 "정의, 후보, 수정, 수정안, 최종안, jan, feb, mar, apr, jun, jul, aug, sep, sept, oct, nov, dec, mon, "
                 "tue, tues, wed, thu, thur, thurs, fri, sat, fy, wk, st, nd, rd, th, ii, iii, iv, phase, round, "
                 "level, module, year, term, semester, quarter, batch, scene, option, options, sprint, pr, h, nº, "
                 "numéro, número, nummer, số, tháng, tuần, quý, выпуск, часть, неделя, а, б, в, г, дүгээр, дугаарын, "
                 "эцсийн хувилбар, хаврын, намрын, хянасан, батлагдсан, финал, 国語, 算数, 理科, 社会, 数学, 英語, "
                 "物理, 化学, 生物, 地理, 歴史, 日本史, 世界史, 古文, 線形代数, 语文, 英语, 历史, 政治, 高数, 數學, "
                 "國文, 国史, 국어, 영어, 수학, 과학, 사회, 한국사, 물리, 생물, 지리, 総務部, 営業部, 経理部, 人事部, "
                 "開発部, 財務部, 财务部, 市场部, 人事部門, 销售部, 技术部, 行政部, 総務課, 営業課, 총무팀, 영업팀, "
                 "개발팀, 인사팀, 마케팅팀, 재무팀, 기획팀, 各位, 一式, 付き, 字幕つき, 改定版, 改定, 説明つき, "
                 "今週分, 来週分, 今月分, 夏休み, 冬休み, 寒假, 暑假, 学期末, 初中, 高中, 小学, 一年级, 二年级, "
                 "三年级, 四年级, 五年级, 六年级, 年级, 年級, 年生, 小学生, 中学生, 高校生, 사항, 안건별, 모음집, "
                 "collection, compilation, 안, a안, b안, c안, 개정안, 시행, 개편안, 변경안, 年第週, 年第周, 年春号, "
                 "年夏号, 年秋号, 年冬号, 春号, 夏号, 秋号, 冬号, 新年号, 令和年度, 令和年月改定, 令和年月改訂, "
                 "年月改定, 年月改訂, 年度版, 令和年度版, 年前期, 年後期, 年度前期, 年度後期, 開発チーム, 営業チーム, "
                 "広報チーム, チーム, 事務局, 結果まとめ, unit, 年上半年, 年下半年, 年第季度, 年第一季度, 年第二季度, "
                 "年第三季度, 年第四季度, 年春季, 年秋季, 月第周, 月第週, 年月第周, 年第期, 年第号, 年四月, "
                 "学年だより, 年度第季度, 年初, 年末, 年终, 年終, 全員, 全体, 全社, 全员, cleaned, raw, merged, "
                 "processed, filtered, exported, combined, anonymized, ios, android, windows, macos, web, mobile, "
                 "desktop, beta, alpha, staging, production, prod, 배포본, 회람본, 인쇄본, 제출본, 보고용, 결재용, "
                 "彙整, 修订, 修訂, a卷, b卷, 甲卷, 乙卷, 首, 两首, 二首, 三首, 四首, 五首, 十首, 两篇, 三篇, 五篇, "
                 "第一周, 第二周, 第三周, 第四周, 第五周, 第六周, 第一週, 第二週, 第三週, 第四週, 주, 및, 교훈, "
                 "の原稿, の下書き, の草稿, のドラフト, の初稿, のテンプレート, のひな形, の雛形, の最終版, の完成版, "
                 "のサンプル, の控え, の書式, の様式, のたたき台, たたき台, の修正案, の改訂版, の案, 的初稿, 的草稿, "
                 "的模板, 的终稿, 的范本, 的示例, 조, 개정본, 시행본, 시즌, 오프닝, 엔딩, 인트로, 年版, 年月版, "
                 "年月日版, 年月日改定, 年月日改訂, 年月日更新, 年月日時点, 年月日現在, 年月現在, 年月日施行, "
                 "年月日修订, 年修订, 年修訂, 年改訂版, 年改定, 月分まとめ, 備選, 备选, 要點, 修訂稿, 記錄, 意見, "
                 "小結, 紀要, 匯總, 終稿, 終版, 簡版, 樣本, 章節, 第一節, 第二節, 第三節, 第一課, 第二課, 第三課, "
                 "第一單元, 第二單元, 第三單元, 第四單元, 第五單元, 第四课, 第五课, 第六课, 第四課, 第五課, 第六課, "
                 "七年级, 八年级, 九年级, 七年級, 八年級, 九年級, 一年級, 二年級, 三年級, 四年級, 五年級, 六年級, "
                 "高一, 高二, 高三, 初一, 初二, 初三, 國小, 國中, 國語, 業務部, 行銷部, 市場部, 一校, 二校, 三校, "
                 "初校, 終校, 终校, 三则, 两则, 五则, 三則, 兩則, 五則, 的範本, 的終稿, 改定案, 改訂案, 第次改訂, "
                 "第次改定, 案a, 案b, 案c, 案本, 第稿, バージョン, a版, b版, 종, 편집본, 一月號, 二月號, 三月號, "
                 "四月號, 五月號, 六月號, 七月號, 八月號, 九月號, 十月號, 十一月號, 十二月號, 四月号, 五月号, 六月号, "
                 "七月号, 八月号, 九月号, 十月号, 十一月号, 十二月号, 二月刊, 五月刊, 六月刊, 九月刊, дүн, 공유",
     .cues = "analyst, teacher, nurse, accountant, marketer, consultant, intern, graduate, new grad, 개발자, "
             "디자이너, 매니저, 마케터, 엔지니어, 면접용, エンジニア, デザイナー"},
    {.kinds = anyOf<journal, changelog>,
     .names = "일지, 작업 일지, 개발 일지, 운동 일지, 실험 일지, 연구 일지, 작업 로그, work log, dev log, "
              "devlog, logbook, 日誌, 日志, 운동 기록, 하루 기록, 工作日志, 手帐, 日録, daily log, "
              "training log, workout log, food log, sleep log, travel log, exercise log, running log, "
              "mood log, 手账, 手帳, 实习日志, diary entry, diary entries, 감사 일지, 그림 일기, 관찰일지, "
              "실습일지, 훈련일지, 독서일지, 근무일지, 학습일지, 당직일지, 현장일지, 다이어트일지, 독서일기, "
              "여행일기, 관찰일기, 다이어트일기, 영어일기, dream log, 육아 일기, 周记, 週記",
     .generics = "로그, logs, log, ログ",
     .cues = ""},
    {.kinds = anyOf<meetingNotes, retrospective>,
     .names = "협의록, 스크럼 기록, 회의 결과, discussion note, weekly meeting, meeting outcome, 打合せ 記録, "
              "座谈会记录, 会议决议, 会议备忘, 晨会记录, 周会纪要, 面談 記録, 会議 次第, 定例 メモ, 面談 メモ, "
              "상담 기록, 상담 일지, 면담 기록, 面谈记录, 會談記錄, 会谈记录, 朝礼 メモ, 미팅록, 会记录, "
              "会紀錄, 會記錄, 會紀錄, 议事录, 議事錄, 朝会 メモ, 座談會記錄, 會議決議, 會議備忘, 晨會記錄, "
              "面談記錄, 週會記錄, 討論紀要",
     .generics = "",
     .cues = "워크숍, 워크샵, 원온원, 데일리, 싱크, 타운홀, 정례 회의, 팀 미팅, 팀 회의, 임원 회의, 전체 회의, "
             "정기 회의, 이사회, 면접, workshop, town hall, all hands, check in, offsite, huddle, catch up, debrief, "
             "ワークショップ, 朝会, 定例, 研讨会, 研討會, 例会, 周会, committee, 협의회, 위원회, 座談会, 委員会, "
             "座谈会, 例會, 週會, 座談會, 委員會, 保護者会, 総会, 理事会, 役員会, 懇談会, 職員会議, 説明会, 총회, "
             "학부모회, 반상회, 대책 회의, 董事会, 董事會, 股东会, 股東會, 班会, 班會, 家长会, 家長會, 理事會"},
    {.kinds = anyOf<blogPost, socialPost, essay>,
     .names = "포스트, 게시글, 스레드, thread, スレッド, 후기, 체험기, 사용기, 방문기, 기고, post, write up, "
              "writeup, 記事, 文章, 帖子, 体験記, 기사, 아티클, 포스팅, 블로그 포스트, 体験談, 博文, listicle, "
              "리뷰 글, 매거진 글, 经验贴, 社媒帖子, 食レポ, 旅行記, 여행기, 游记, 遊記, 여행후기, 사용후기, "
              "구매후기, 방문후기, 체험후기, 합격후기, 수강후기",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<data, checklist>,
     .names = "목록, 리스트, 현황표, 목록표, list, 一覧, 一覧表, リスト, 列表, 名单, 名單, 명단, 명부, 재고 현황, "
              "관리 대장, roster, inventory, 名簿, 名册, 花名册, 名錄, 通讯录, 通訊錄, 台账, 台帳, 明细表, 明細表, "
              "明细, 汇总表, 彙總表, 数据表, 數據表, 集計表, 住所録, 通訊録, spreadsheet, 주소록, 연락처, 집계표, "
              "출석부, 통계표, 로우 데이터, 데이터시트, 집계 자료, attendance sheet, survey response, measurement, "
              "登记表, 登記表, 清册, 资料库, 資料庫, 成绩单, 考勤表, 签到表, 點名表, 數據, 在庫表, 出席簿, 成績表, "
              "库存表, 庫存表, results table, result table, 고객명단, 참석자명단, 참가자명단, 직원명단, 회원명단, "
              "수강생명단, 신청자명단, 합격자명단, 거래처명단, 회원명부, 직원명부, 학생명부, 비품대장, 자산대장, "
              "재고대장, 관리대장, 출입대장, 문서대장, 물품대장, 장비대장, 자산목록, 비품목록, 도서목록, 물품목록, "
              "장비목록, 고객목록, 업체목록, 제품목록, 상품목록, 거래처목록, 자료목록, 파일목록, 출석현황, 报表, "
              "统计表, 数据集, 報表, 統計表, 資料集, 數據集, 資料表, 名冊, 匯總表, 清冊, 成績單, 簽到表, "
              "data dictionary, sales figure, metrics, 통계, 集計, 成绩表, 점수표, 成績 一覧, member directory, "
              "staff directory, phone directory",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<guide, learning>,
     .names = "튜토리얼, 치트 시트, 사용법, 사용 방법, cheat sheet, cheatsheet, quick start, quickstart, "
              "getting started, walkthrough, チュートリアル, やり方, 始め方, 早見表, 教程, 教學, 指引, 操作步骤, "
              "操作步驟, 帮助文档, 新手入门, playbook, handbook, 방법, 설치 방법, 手引き, ハンド ブック, 使い方, "
              "書き方, 가이드북, 작업 절차, 표준 작업 절차서, 팁 모음, 핸드북, 길라잡이, 使用說明, 作业指导书, "
              "常用命令, 最佳实践, 快速入门, 技巧汇总, 注意事项, 注意事項, 業務 フロー, 早わかり, 虎の巻, 引継書, "
              "作業 要領, 引き継ぎ書, 引継ぎ書, 引き継ぎ 資料, 引継ぎ 資料, 트러블슈팅, 환경 설정, 환경 구성, "
              "문제 해결 가이드, トラブル シューティング, 環境 設定, 故障排查, 问题排查, 環境建置, 环境搭建, 环境配置, "
              "처리 절차, 신청 절차, 이용 절차, 진행 절차, 꿀팁, 꿀팁 모음, 노하우, 申請方法, 利用方法, 申请方法, "
              "使用方法, 操作方法, 登録方法, 절차서, 업무매뉴얼, 사용자매뉴얼, 관리자매뉴얼, 운영매뉴얼, 설치매뉴얼, "
              "교육매뉴얼, 안전매뉴얼, 작업매뉴얼, 대응매뉴얼, 장애대응매뉴얼, 설치가이드, 사용자가이드, 이용가이드, "
              "개발가이드, 작성가이드, 운영가이드, 온보딩가이드, 입문가이드, 배포가이드, ランブック, 说明书, 說明書, "
              "操作说明, 使用说明, 攻略, 流程, 幫助文件, 新手入門, 作業指導書, 最佳實踐, 快速入門, 技巧匯總, 問題排查, "
              "環境搭建, 環境配置, 懶人包, 操作流程, runbooks, tutorials, best practice, sops, howto, 環境構築, 런북, "
              "인수인계서, 지침서, 步驟說明, 步骤说明, troubleshooting, しおり, 説明書, 步驟, 步骤, 設定步驟, "
              "환경 세팅, 개발 환경 세팅",
     .generics = "문서, 문서화, 서류, 개요, 소개, 입문, 기초, documents, document, documentation, doc, docs, "
                 "overview, introduction, intro, basics, fundamentals, 文書, ドキュメント, 概要, 紹介, 入門, "
                 "基礎, 文档, 文檔, 文件, 概述, 简介, 簡介, 介绍, 介紹, 入门, 基础, 概览, 概覽, 总览, 개괄, "
                 "총정리, 一览",
     .cues = ""},
});

}  // namespace

std::span<const Shared> shared() {
    return rows;
}

}  // namespace vellark::KindWords
